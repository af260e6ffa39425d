# One static library a room, from the table in rooms.txt. Sources are globbed: a new file needs no
# edit here. A room without sources is an interface library, so that others can name it.

set(QUENDLE_ROOMS_FILE ${PROJECT_SOURCE_DIR}/cmake/rooms.txt)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${QUENDLE_ROOMS_FILE})

# quendle_room_target(OUT ROOM): the library of a room, `backends/raster` -> `quendle_raster`.
function(quendle_room_target out room)
  get_filename_component(last ${room} NAME)
  string(TOLOWER ${last} last)
  set(${out} quendle_${last} PARENT_SCOPE)
endfunction()

# quendle_read_rooms(): sets QUENDLE_ROOMS (lowest first), and for each QUENDLE_FLOOR_<room> and
# QUENDLE_SOURCES_<room> (its .cpp files).
macro(quendle_read_rooms)
  set(QUENDLE_ROOMS)
  file(STRINGS ${QUENDLE_ROOMS_FILE} rows REGEX "^[0-9s]")
  foreach(row IN LISTS rows)
    string(REGEX MATCH "^([0-9]+|side)[ ]+([^ ]+)" matched "${row}")
    set(room ${CMAKE_MATCH_2})
    set(QUENDLE_FLOOR_${room} ${CMAKE_MATCH_1})
    list(APPEND QUENDLE_ROOMS ${room})
    if(room MATCHES "/[A-Z]")  # a class that is a room of its own
      file(GLOB QUENDLE_SOURCES_${room} CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/${room}*.cpp)
    else()
      file(GLOB_RECURSE QUENDLE_SOURCES_${room} CONFIGURE_DEPENDS
           ${PROJECT_SOURCE_DIR}/src/${room}/*.cpp)
    endif()
  endforeach()
  foreach(room IN LISTS QUENDLE_ROOMS)
    if(room MATCHES "^(.+)/[A-Z]")
      list(REMOVE_ITEM QUENDLE_SOURCES_${CMAKE_MATCH_1} ${QUENDLE_SOURCES_${room}})
    endif()
  endforeach()
endmacro()

# quendle_sees(OUT ROOM OTHER): whether ROOM may link OTHER. Rooms of one floor may see each other;
# circles among their includes are found by scripts/check_rooms.py.
function(quendle_sees out room other)
  set(mine ${QUENDLE_FLOOR_${room}})
  set(theirs ${QUENDLE_FLOOR_${other}})
  set(seen FALSE)
  if(room STREQUAL other OR (room STREQUAL "platform"))
    set(seen FALSE)
  elseif(mine STREQUAL "side")
    if(theirs STREQUAL "side" OR theirs EQUAL 0)
      set(seen TRUE)
    endif()
  elseif(theirs STREQUAL "side")
    if(room STREQUAL "toolbelt")
      set(seen TRUE)
    endif()
  elseif(theirs LESS_EQUAL mine)
    set(seen TRUE)
  endif()
  set(${out} ${seen} PARENT_SCOPE)
endfunction()

# quendle_room(ROOM): the library and, from tests/ROOM, the test executable `test_<room>`.
function(quendle_room room)
  quendle_room_target(target ${room})
  if(QUENDLE_SOURCES_${room})
    add_library(${target} STATIC ${QUENDLE_SOURCES_${room}})
    target_link_libraries(${target} PRIVATE quendle_engine_flags)
    set(scope PUBLIC)
  else()
    add_library(${target} INTERFACE)
    set(scope INTERFACE)
  endif()
  foreach(other IN LISTS QUENDLE_ROOMS)
    quendle_sees(seen ${room} ${other})
    if(seen AND QUENDLE_SOURCES_${other})
      quendle_room_target(other_target ${other})
      target_link_libraries(${target} ${scope} ${other_target})
    endif()
  endforeach()
  quendle_room_tests(${room} ${target})
endfunction()

# quendle_third_party(ROOM LIBRARY...): links them into a room and its tests, unseen by the rooms
# above.
function(quendle_third_party room)
  quendle_room_target(target ${room})
  string(REPLACE "quendle_" "test_" test ${target})
  if(QUENDLE_SOURCES_${room})
    target_link_libraries(${target} PRIVATE ${ARGN})
  endif()
  if(TARGET ${test})
    target_link_libraries(${test} PRIVATE ${ARGN})
  endif()
endfunction()
