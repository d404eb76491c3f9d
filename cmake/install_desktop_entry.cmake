# Run by `cmake --install` and CPack, when the prefix is known: the desktop entry with Exec set to
# where the program is installed. KWin grants what an entry asks for in X-KDE-Wayland-Interfaces
# only to the program whose absolute path its Exec names; a bare "tindra" matches nothing.
file(READ "${tindra_desktop_entry}" entry)
string(REGEX REPLACE "\nExec=[^\n]*" "\nExec=${CMAKE_INSTALL_PREFIX}/${tindra_bindir}/tindra"
  entry "${entry}")
get_filename_component(name "${tindra_desktop_entry}" NAME)
set(staged "${tindra_staging_dir}/${name}")
file(WRITE "${staged}" "${entry}")
file(INSTALL "${staged}" DESTINATION "${CMAKE_INSTALL_PREFIX}/${tindra_datadir}/applications")
