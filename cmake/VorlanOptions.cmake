# What every target of the project is compiled with.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
  set(CMAKE_BUILD_TYPE Release CACHE STRING "" FORCE)
endif()

option(VORLAN_WARNINGS_AS_ERRORS "Treat warnings as errors" ON)
option(VORLAN_SANITIZE "Address and undefined-behaviour sanitizers" OFF)

add_library(vorlan_options INTERFACE)
if(MSVC)
  # Programs need no runtime library beside them.
  set(CMAKE_MSVC_RUNTIME_LIBRARY "MultiThreaded$<$<CONFIG:Debug>:Debug>")
  target_compile_options(vorlan_options INTERFACE /W4 /utf-8 $<$<BOOL:${VORLAN_WARNINGS_AS_ERRORS}>:/WX>)
else()
  target_compile_options(vorlan_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Woverloaded-virtual
    # A row of a table names what differs from the usual case; everything else is zero on purpose.
    -Wno-missing-field-initializers
    # GCC 12 finds overlaps in the joining of texts where there are none.
    $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>
    $<$<BOOL:${VORLAN_WARNINGS_AS_ERRORS}>:-Werror>)
endif()
if(VORLAN_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
  # The runtime is a shared library, as GCC has it, for modules that an interpreter loads as well as for programs.
  set(VORLAN_SANITIZER_RUNTIME libasan.so)
  if(CMAKE_CXX_COMPILER_ID MATCHES "Clang")
    set(VORLAN_SANITIZER_RUNTIME libclang_rt.asan-${CMAKE_SYSTEM_PROCESSOR}.so)
  endif()
  execute_process(COMMAND "${CMAKE_CXX_COMPILER}" -print-file-name=${VORLAN_SANITIZER_RUNTIME}
                  OUTPUT_VARIABLE VORLAN_SANITIZER_RUNTIME OUTPUT_STRIP_TRAILING_WHITESPACE)
  if(CMAKE_CXX_COMPILER_ID MATCHES "Clang")
    get_filename_component(folder "${VORLAN_SANITIZER_RUNTIME}" DIRECTORY)
    add_link_options(-shared-libasan "-Wl,-rpath,${folder}")
  endif()
endif()
