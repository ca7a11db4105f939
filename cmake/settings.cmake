# How every target is compiled: the language, the warnings, the sanitizers, where binaries land.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)

if(NOT CMAKE_BUILD_TYPE)
  set(CMAKE_BUILD_TYPE Release)
endif()

# Libraries lie beside the executables, in the build tree and wherever it is installed.
if(APPLE)
  set(CMAKE_INSTALL_RPATH "@loader_path")
else()
  set(CMAKE_INSTALL_RPATH "$ORIGIN")
endif()
set(CMAKE_BUILD_WITH_INSTALL_RPATH ON)

set(TAVRIK_SANITIZE "" CACHE STRING "Sanitizers, as -fsanitize takes them")
option(TAVRIK_COVERAGE "Count the lines that run" OFF)

add_library(tavrik_settings INTERFACE)
target_include_directories(tavrik_settings INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_options(tavrik_settings INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wnon-virtual-dtor -Werror
  # Rows and descriptions leave out what keeps its default.
  -Wno-missing-field-initializers)
# GCC 12 sees overlaps where texts are joined that aren't there.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  target_compile_options(tavrik_settings INTERFACE -Wno-restrict)
endif()
if(TAVRIK_SANITIZE)
  target_compile_options(tavrik_settings INTERFACE
    -fsanitize=${TAVRIK_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(tavrik_settings INTERFACE -fsanitize=${TAVRIK_SANITIZE})
endif()
if(TAVRIK_COVERAGE)
  target_compile_options(tavrik_settings INTERFACE --coverage)
  target_link_options(tavrik_settings INTERFACE --coverage)
endif()
