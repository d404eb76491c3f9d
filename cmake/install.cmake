# `cmake --install` and the Debian package: the program in bin, its now-playing helper in
# libexec/tindra (where the program looks for it), the desktop entry and the icon where
# desktops find them. `cpack -G DEB` in a build folder makes the package, its dependencies
# worked out from the programs' shared libraries.
include(GNUInstallDirs)

install(TARGETS tindra RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
install(TARGETS tindra-mpris-adapter RUNTIME DESTINATION "${CMAKE_INSTALL_LIBEXECDIR}/tindra")
install(CODE "set(tindra_desktop_entry \"${PROJECT_SOURCE_DIR}/packaging/com.brenvik.Tindra.desktop\")
  set(tindra_staging_dir \"${PROJECT_BINARY_DIR}\")
  set(tindra_bindir \"${CMAKE_INSTALL_BINDIR}\")
  set(tindra_datadir \"${CMAKE_INSTALL_DATADIR}\")")
install(SCRIPT "${PROJECT_SOURCE_DIR}/cmake/install_desktop_entry.cmake")
install(FILES "${PROJECT_SOURCE_DIR}/packaging/com.brenvik.Tindra.svg"
  DESTINATION "${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps")

set(CPACK_PACKAGE_NAME "tindra")
set(CPACK_PACKAGE_VENDOR "Brenvik")
set(CPACK_PACKAGE_CONTACT "${TINDRA_SUPPORT_EMAIL}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "The notch as a small live display")
set(CPACK_PACKAGE_HOMEPAGE_URL "${TINDRA_WEB_ADDRESS}")
set(CPACK_PACKAGING_INSTALL_PREFIX "/usr")
set(CPACK_DEBIAN_PACKAGE_SECTION "utils")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_STRIP_FILES ON)
# Qt's QML modules and its Wayland platform are loaded at run time, so no library dependency
# names them. XWayland is only recommended: it serves a Wayland desktop that offers no layer
# shell, where the notch stays an X11 window.
set(CPACK_DEBIAN_PACKAGE_DEPENDS
  "qml6-module-qtqml, qml6-module-qtqml-models, qml6-module-qtqml-workerscript, qml6-module-qtquick, qml6-module-qtquick-window, qml6-module-qtquick-layouts, qml6-module-qtquick-shapes, qt6-wayland")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "xwayland")
set(CPACK_GENERATOR "DEB")
include(CPack)

if(TINDRA_BUILD_TESTS)
  add_test(NAME install.Tree
    COMMAND "${PROJECT_SOURCE_DIR}/scripts/check-install" "${PROJECT_BINARY_DIR}")
  set_tests_properties(install.Tree PROPERTIES LABELS "install" TIMEOUT 120)
endif()
