# Compiles SOURCE with COMPILER, which must refuse it with the sentence that the source's first line names. A source
# that names none must compile.
file(STRINGS ${SOURCE} first_line LIMIT_COUNT 1)
execute_process(
  COMMAND ${COMPILER} -std=c++20 -fsyntax-only -I${ROOT} -I${ROOT}/toolkit/include ${SOURCE}
  RESULT_VARIABLE result
  ERROR_VARIABLE told)

if(NOT first_line MATCHES "^// error: (.*)$")
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "${SOURCE} should compile:\n${told}")
  endif()
  return()
endif()

set(sentence "${CMAKE_MATCH_1}")
if(result EQUAL 0)
  message(FATAL_ERROR "${SOURCE} compiles, and shouldn't")
endif()
string(FIND "${told}" "${sentence}" at)
if(at EQUAL -1)
  message(FATAL_ERROR "${SOURCE} is refused, but not with \"${sentence}\":\n${told}")
endif()
