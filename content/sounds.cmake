# The sounds of the clinic, added to the list `made`. The doctor's sentences stand in
# Info/captions.txt and are spoken by espeak-ng; noises and music come from our own generator; ffmpeg
# encodes all of them.
#
# The player knows a sound by its bytes, so without ffmpeg the plain waves do, under the same names:
# they are larger, that is all. Without espeak-ng the doctor murmurs.

find_program(ESPEAK_NG espeak-ng)
find_program(FFMPEG ffmpeg)
if(NOT FFMPEG)
  message(WARNING "No ffmpeg: the sounds of the demo clinic stay unencoded, which makes them ten times "
                  "as large. Install the package ffmpeg and configure again.")
endif()
if(NOT ESPEAK_NG)
  message(WARNING "No espeak-ng: the doctor of the demo clinic murmurs instead of speaking. "
                  "Install the package espeak-ng and configure again.")
endif()

set(sound_dir ${CMAKE_CURRENT_SOURCE_DIR}/sound)
set(sound_work ${CMAKE_CURRENT_BINARY_DIR}/sound)
set(captions ${CMAKE_CURRENT_SOURCE_DIR}/Info/captions.txt)
set(make_sound ${Python3_EXECUTABLE} -B ${sound_dir}/make.py)
file(GLOB sound_sources CONFIGURE_DEPENDS ${sound_dir}/*.py)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${sound_sources} ${captions})
execute_process(COMMAND ${make_sound} list ${captions} OUTPUT_VARIABLE sounds
                OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
string(REPLACE "\n" ";" sounds "${sounds}")

foreach(sound IN LISTS sounds)
  string(REPLACE " " ";" sound ${sound})
  list(GET sound 0 kind)
  list(GET sound 1 name)
  set(wav ${sound_work}/${kind}/${name}.wav)
  # The encoder loses its first frame and harms the end: both are padded by a frame.
  set(filter adelay=delays=1024S:all=1,apad=pad_len=1024)
  if(kind STREQUAL "speech")
    set(folder Info/Doctor/voice)
    # A sentence of its own file: changing one line of the captions speaks that line alone again.
    set(words ${sound_work}/speech/${name}.txt)
    execute_process(COMMAND ${make_sound} words ${captions} ${name} OUTPUT_VARIABLE sentence
                    COMMAND_ERROR_IS_FATAL ANY)
    file(CONFIGURE OUTPUT ${words} CONTENT "${sentence}" @ONLY)
    if(ESPEAK_NG)
      set(make_wav COMMAND ${ESPEAK_NG} -v en-us+f3 -p 62 -s 140 -f ${words} -w ${wav}.raw
                   COMMAND ${make_sound} speech ${wav}.raw ${wav})
    else()
      set(make_wav COMMAND ${make_sound} babble ${words} ${wav})
    endif()
    set(sources ${words} ${sound_dir}/make.py ${sound_dir}/wave_file.py)
  elseif(kind STREQUAL "effect")
    set(folder Info/GlobalReferences/sounds)
    set(make_wav COMMAND ${make_sound} effect ${name} ${wav})
    set(sources ${sound_dir}/make.py ${sound_dir}/wave_file.py ${sound_dir}/effects.py)
  else()
    set(folder Info)
    # The player keeps a whole sound as samples, and the tune is by far the longest.
    set(filter aresample=16000,adelay=delays=512S:all=1,apad=pad_len=512)
    set(make_wav COMMAND ${make_sound} tune ${wav})
    set(sources ${sound_dir}/make.py ${sound_dir}/wave_file.py ${sound_dir}/tune.py)
  endif()
  set(wma ${QUENDLE_CONTENT_DIR}/${folder}/${name}.wma)
  file(MAKE_DIRECTORY ${sound_work}/${kind} ${QUENDLE_CONTENT_DIR}/${folder})
  add_custom_command(OUTPUT ${wav} ${make_wav} DEPENDS ${sources} COMMENT "Sounding ${name}" VERBATIM)
  if(FFMPEG)
    set(encode ${FFMPEG} -hide_banner -nostdin -loglevel error -y -i ${wav}
        -af ${filter} -c:a wmav2 -b:a 48k
        -map_metadata -1 -fflags +bitexact -flags:a +bitexact ${wma})
  else()
    set(encode ${CMAKE_COMMAND} -E copy ${wav} ${wma})
  endif()
  add_custom_command(OUTPUT ${wma} COMMAND ${encode} DEPENDS ${wav} COMMENT "Encoding ${name}" VERBATIM)
  list(APPEND made ${wma})
endforeach()
