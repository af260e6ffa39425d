# The manual of the tool belt, made by the belt itself: target `man`, installed where man(1) looks.

set(QUENDLE_MAN_DIR ${PROJECT_BINARY_DIR}/man)
if(TARGET quendle)
  add_custom_command(OUTPUT ${QUENDLE_MAN_DIR}/quendle.1
    COMMAND ${Python3_EXECUTABLE} ${PROJECT_SOURCE_DIR}/scripts/make_man.py
            $<TARGET_FILE:quendle> ${QUENDLE_MAN_DIR}
    DEPENDS quendle ${PROJECT_SOURCE_DIR}/scripts/make_man.py
    COMMENT "Writing the manual" VERBATIM)
  add_custom_target(man ALL DEPENDS ${QUENDLE_MAN_DIR}/quendle.1)
  include(GNUInstallDirs)
  install(DIRECTORY ${QUENDLE_MAN_DIR}/ DESTINATION ${CMAKE_INSTALL_MANDIR}/man1
          FILES_MATCHING PATTERN "*.1")
endif()
