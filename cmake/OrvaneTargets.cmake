# What every target of ours is compiled with.
add_library(orvane_build INTERFACE)
target_compile_options(orvane_build INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Woverloaded-virtual -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # g++ 12 sees overlaps and overflows in std::string operations that are none, once it optimises.
  target_compile_options(orvane_build INTERFACE -Wno-restrict -Wno-stringop-overflow -Wno-array-bounds)
endif()
target_compile_options(orvane_build INTERFACE -fPIC)  # as Qt asks for: all can then share precompiled headers
target_include_directories(orvane_build INTERFACE ${PROJECT_SOURCE_DIR})
if(CMAKE_BUILD_TYPE STREQUAL "Release")
  # What is shipped is hardened, and the same bytes from whatever folder it was built in.
  target_compile_options(orvane_build INTERFACE -fstack-protector-strong -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=3
    -ffile-prefix-map=${PROJECT_SOURCE_DIR}=. -ffile-prefix-map=${PROJECT_BINARY_DIR}=build)
  target_link_options(orvane_build INTERFACE -pie -Wl,-z,relro,-z,now)
endif()
if(ORVANE_SANITIZE)
  target_compile_options(orvane_build INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(orvane_build INTERFACE -fsanitize=address,undefined)
endif()
if(ORVANE_FUZZ)
  target_compile_options(orvane_build INTERFACE -fsanitize=fuzzer-no-link)
endif()

# Precompiled once for all that need no Qt, once with Qt, and the same for the tests. Not under ccache: g++ writes no two
# precompiled headers alike, so that one clone could use nothing of what was compiled in another.
if(CMAKE_CXX_COMPILER_LAUNCHER MATCHES "ccache")
  set(CMAKE_DISABLE_PRECOMPILE_HEADERS ON)
endif()
set(standard_headers <algorithm> <functional> <map> <memory> <optional> <string> <string_view> <vector>)
set(qt_headers <QApplication> <QComboBox> <QKeyEvent> <QLayout> <QMdiArea> <QMenuBar> <QMessageBox> <QPainter>
  <QPlainTextEdit> <QSignalBlocker> <QStyleOption> <QTimer> <QTreeWidget>)

# orvane_library(NAME LIB...): a static library of all sources of this folder; it may use LIB... and nothing else.
function(orvane_library name)
  file(GLOB sources CONFIGURE_DEPENDS *.cpp *.h)
  list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
  add_library(${name} STATIC ${sources})
  target_link_libraries(${name} PUBLIC orvane_build ${ARGN})
endfunction()

# orvane_tests(FOLDER LIB...): one test program of all sources of tests/FOLDER, each test known to CTest by name.
function(orvane_tests folder)
  file(GLOB sources CONFIGURE_DEPENDS ${folder}/*.cpp ${folder}/*.h)
  include(GoogleTest)
  add_executable(${folder}_tests ${sources})
  target_link_libraries(${folder}_tests PRIVATE test_support ${ARGN} GTest::gtest_main)
  if(Qt6::Test IN_LIST ARGN)
    target_precompile_headers(${folder}_tests PRIVATE ${standard_headers} <gtest/gtest.h> ${qt_headers} <QTest>)
  else()
    target_precompile_headers(${folder}_tests REUSE_FROM test_support)
  endif()
  gtest_discover_tests(${folder}_tests PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen" DISCOVERY_TIMEOUT 60)
endfunction()
