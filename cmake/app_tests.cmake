# The app's tests, found by their files; nothing here lists a test or a folder.
# - A test file whose first line says what it needs ("// Runs in: private-session --xvfb
#   --window-manager") is a desktop test: one program per folder and session runs them whole in
#   that private session, so their services (Xvfb, buses, dbusmock, PulseAudio) start once per
#   program. CTest names it desktop.<folder>.<session>, labelled "integration".
# - Every other test file needs nothing but Qt's offscreen platform: one program per folder,
#   each case a CTest test of its own (app.<folder>.<Suite>.<Case>) in a fresh private session.
# A folder's platform tests (linux/) join its programs.
set(session "${PROJECT_SOURCE_DIR}/scripts/private-session")
# The sanitizer run looks for leaks in the app as in the core (the asan test preset's
# ASAN_OPTIONS); Qt, fontconfig and the GL stack keep what they allocate reachable until exit, so
# no suppressions are needed.
set(app_test_env "QT_QUICK_BACKEND=software")

file(GLOB test_support CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/testing/*.cpp")
add_library(tindra_test_support STATIC ${test_support} test_main.cpp)
target_link_libraries(tindra_test_support PUBLIC tindra_app_lib Qt6::Test Qt6::DBus GTest::gmock
  GTest::gtest)
target_compile_definitions(tindra_test_support PUBLIC TINDRA_SOURCE_DIR="${PROJECT_SOURCE_DIR}"
  TINDRA_BINARY="$<TARGET_FILE:tindra>" TINDRA_TEST_POINTER="$<TARGET_FILE:tindra-test-pointer>")
# Parsing Google Test and Qt's test headers is about a quarter of each test file's compile; every
# test program shares this one precompiled header (same flags, so GCC accepts it everywhere).
target_precompile_headers(tindra_test_support PRIVATE <gmock/gmock.h> <gtest/gtest.h> <QTest>
  <QSignalSpy> <QTemporaryDir> <QDBusConnection> <QDBusMessage> <QGuiApplication> <QProcess>)

file(GLOB_RECURSE test_files CONFIGURE_DEPENDS RELATIVE "${CMAKE_CURRENT_SOURCE_DIR}" "*_test.cpp")
list(FILTER test_files EXCLUDE REGEX "^testing/")
if(NOT CMAKE_SYSTEM_NAME STREQUAL "Linux")
  list(FILTER test_files EXCLUDE REGEX "/linux/")
endif()

set(programs "")
foreach(file IN LISTS test_files)
  if(file MATCHES "^([^/]+)/")
    set(folder "${CMAKE_MATCH_1}")
  else()
    set(folder "root")  # the composition root
  endif()
  file(STRINGS "${CMAKE_CURRENT_SOURCE_DIR}/${file}" runs_in LIMIT_COUNT 1 REGEX "^// Runs in: private-session ")
  if(runs_in)
    string(REPLACE "// Runs in: private-session " "" options "${runs_in}")
    string(REGEX REPLACE "^--" "" name "${options}")
    string(REGEX REPLACE " +--" "-" name "${name}")
    string(REPLACE "-" "_" id "${name}")
    set(program "app_${folder}_${id}_tests")
    set(test_name_${program} "desktop.${folder}.${name}")
    separate_arguments(options_${program} UNIX_COMMAND "${options}")
  else()
    set(program "app_${folder}_tests")
    set(test_name_${program} "")
    set(folder_${program} "${folder}")
  endif()
  list(APPEND programs ${program})
  list(APPEND sources_${program} ${file})
endforeach()
list(REMOVE_DUPLICATES programs)

foreach(program IN LISTS programs)
  add_executable(${program} ${sources_${program}})
  target_link_libraries(${program} PRIVATE tindra_test_support)
  set_target_properties(${program} PROPERTIES PRECOMPILE_HEADERS_REUSE_FROM tindra_test_support)
  add_dependencies(${program} tindra tindra-mpris-adapter tindra-test-pointer)
  if(test_name_${program})
    add_test(NAME ${test_name_${program}}
      COMMAND ${session} ${options_${program}} -- $<TARGET_FILE:${program}>)
    set_tests_properties(${test_name_${program}} PROPERTIES LABELS "app;integration"
      ENVIRONMENT "${app_test_env}" TIMEOUT 180)
  else()
    set_target_properties(${program} PROPERTIES CROSSCOMPILING_EMULATOR "${session};--offscreen;--")
    gtest_discover_tests(${program} TEST_PREFIX "app.${folder_${program}}." DISCOVERY_MODE PRE_TEST
      PROPERTIES LABELS app ENVIRONMENT "${app_test_env}" TIMEOUT 120)
  endif()
endforeach()
