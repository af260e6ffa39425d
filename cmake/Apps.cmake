# The executables: apps/game.cpp twice, as two editions, and apps/quendle.cpp.

set(QUENDLE_BUILD_TEXT
    "${CMAKE_BUILD_TYPE}, ${CMAKE_CXX_COMPILER_ID} ${CMAKE_CXX_COMPILER_VERSION}")

# quendle_app(NAME SOURCE ROOM...): an executable, when its source is there.
function(quendle_app name source)
  if(NOT EXISTS ${PROJECT_SOURCE_DIR}/${source})
    return()
  endif()
  add_executable(${name} ${source})
  target_compile_definitions(${name} PRIVATE
    QUENDLE_VERSION="${PROJECT_VERSION}" QUENDLE_BUILD="${QUENDLE_BUILD_TEXT}")
  target_link_libraries(${name} PRIVATE quendle_engine_flags)
  foreach(room IN LISTS ARGN)
    target_link_libraries(${name} PRIVATE quendle_${room})
  endforeach()
endfunction()

foreach(edition IN ITEMS wumbly=2 tandrel=1)
  string(REPLACE "=" ";" edition ${edition})
  list(GET edition 0 name)
  list(GET edition 1 number)
  quendle_app(${name} apps/game.cpp shell desktop codecs headless raster)
  if(TARGET ${name})
    target_compile_definitions(${name} PRIVATE QUENDLE_EDITION=${number})
    target_link_libraries(${name} PRIVATE SDL2::SDL2 CLI11::CLI11)
  endif()
endforeach()

quendle_app(quendle apps/quendle.cpp toolbelt)
if(TARGET quendle)
  target_link_libraries(quendle PRIVATE CLI11::CLI11)
endif()
