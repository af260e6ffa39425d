# How everything is compiled: language, cache, warnings, sanitizers.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_SCAN_FOR_MODULES OFF)

find_program(QUENDLE_CCACHE ccache)
if(QUENDLE_CCACHE)
  # The cache takes files with a precompiled header only when told that it may.
  set(CMAKE_CXX_COMPILER_LAUNCHER
      ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros ${QUENDLE_CCACHE})
endif()

set(QUENDLE_WARNINGS_AS_ERRORS AUTO CACHE STRING
    "ON, OFF, or AUTO: errors with the compiler whose warnings we keep at none")
option(QUENDLE_SANITIZE "Compile and link with address and undefined-behaviour sanitizers" OFF)
option(QUENDLE_FUZZ "Make the fuzz targets with libFuzzer; needs clang" OFF)

# What every file of ours is compiled with, tests included.
add_library(quendle_flags INTERFACE)
target_include_directories(quendle_flags INTERFACE ${PROJECT_SOURCE_DIR}/src)
target_compile_options(quendle_flags INTERFACE
  -Wall -Wextra -Wpedantic
  -Wnon-virtual-dtor      # deleting through an interface must reach the derived destructor
  -Woverloaded-virtual    # a signature that misses its base hides it silently
  -Wsuggest-override      # so that a changed interface breaks every implementation loudly
  -Wshadow                # an inner name that hides a field is a wrong read waiting to happen
  -Wold-style-cast        # a C cast can drop const and narrow at once
  -Wcast-qual             # const content stays const
  -Wextra-semi            # stray semicolons hide a missing body
  -Wformat=2              # format strings come from us, never from content
  -Wundef                 # a misspelt macro is not zero
)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  target_compile_options(quendle_flags INTERFACE
    -Wduplicated-cond     # the second of two equal branches never runs
    -Wlogical-op          # `a && 4` where `a & 4` was meant
    -fpch-preprocess      # lets the cache see the precompiled header of the tests
    -Wno-restrict         # GCC 12 reports std::string concatenation falsely at -O2
  )
endif()

# What the engine itself is compiled with beside that; tests speak in plain int literals.
add_library(quendle_engine_flags INTERFACE)
target_link_libraries(quendle_engine_flags INTERFACE quendle_flags)
target_compile_options(quendle_engine_flags INTERFACE
  -Wconversion            # numbers narrow in one checked function, nowhere else
  -Wno-sign-conversion    # sizes meet coordinates too often for this to find anything
)

if(QUENDLE_SANITIZE)
  set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_compile_options(quendle_flags INTERFACE ${sanitizers}
    -Wno-maybe-uninitialized  # instrumented code defeats the flow analysis
  )
  target_link_options(quendle_flags INTERFACE ${sanitizers})
endif()

if(QUENDLE_FUZZ)
  # All code tells the fuzzer which ways it took; only the targets have the fuzzer's main.
  target_compile_options(quendle_flags INTERFACE -fsanitize=fuzzer-no-link)
endif()

set(fatal_warnings ${QUENDLE_WARNINGS_AS_ERRORS})
if(fatal_warnings STREQUAL "AUTO")
  # Another compiler warns about other things: that must not keep anyone from playing.
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION MATCHES "^12\\."
     AND NOT QUENDLE_SANITIZE)
    set(fatal_warnings ON)
  else()
    set(fatal_warnings OFF)
  endif()
endif()
if(fatal_warnings)
  target_compile_options(quendle_flags INTERFACE -Werror)
else()
  # Whatever the compiler: a place that forgets a new enumerator is no matter of taste.
  target_compile_options(quendle_flags INTERFACE -Werror=switch)
endif()
