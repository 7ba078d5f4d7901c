# step(COMMAND…) runs a command that must succeed; what it wrote is in `output`.
function(step)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT status EQUAL 0)
    string(JOIN " " command ${ARGN})
    message(FATAL_ERROR "${command} gave ${status}:\n${output}")
  endif()
  set(output "${output}" PARENT_SCOPE)
endfunction()
