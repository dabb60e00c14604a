# Runs one fuzzer briefly: cmake -DFUZZER=<exe> -DCORPUS=<dir> -DWORK=<dir> -DRUNS=<n> -DSECONDS=<s> -P RunFuzzer.cmake
# The corpus is copied into WORK first: the fuzzer adds what it finds there, and
# the source tree is never written.
foreach(var FUZZER CORPUS WORK RUNS SECONDS)
  if(NOT DEFINED ${var})
    message(FATAL_ERROR "RunFuzzer.cmake: -D${var}=... missing")
  endif()
endforeach()

file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK}/corpus ${WORK}/artifacts)
if(EXISTS ${CORPUS})
  file(COPY ${CORPUS}/ DESTINATION ${WORK}/corpus)
endif()

execute_process(
  COMMAND ${FUZZER} -runs=${RUNS} -max_total_time=${SECONDS} -artifact_prefix=${WORK}/artifacts/
          -print_final_stats=1 ${WORK}/corpus
  WORKING_DIRECTORY ${WORK}
  RESULT_VARIABLE status)
if(NOT status EQUAL 0)
  file(GLOB found ${WORK}/artifacts/*)
  message(FATAL_ERROR "${FUZZER} failed (${status}); inputs that broke it: ${found}")
endif()
