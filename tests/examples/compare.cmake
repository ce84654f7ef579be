# Fails unless both programs print the same.
foreach(program IN ITEMS NATIVE CROSS)
  execute_process(COMMAND ${${program}} ${ARGUMENTS}
    OUTPUT_VARIABLE output_${program} ERROR_VARIABLE errors COMMAND_ERROR_IS_FATAL ANY)
endforeach()
if(NOT output_NATIVE STREQUAL output_CROSS)
  message(FATAL_ERROR "native:\n${output_NATIVE}\ncross:\n${output_CROSS}")
endif()
