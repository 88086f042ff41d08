# Builds TARGET in BUILD_DIR and passes only when the build fails because HEADER
# cannot be found: a translation unit that reaches across a layer must not
# compile, and must fail for that reason rather than another.
cmake_minimum_required(VERSION 3.25)
execute_process(COMMAND ${CMAKE_COMMAND} --build ${BUILD_DIR} --target ${TARGET}
                OUTPUT_VARIABLE output ERROR_VARIABLE output RESULT_VARIABLE status)
if(status EQUAL 0)
  message(FATAL_ERROR "${TARGET} compiled: \"${HEADER}\" is visible across the layer")
endif()
string(FIND "${output}" "${HEADER}: No such file or directory" gccMissing)    # g++
string(FIND "${output}" "'${HEADER}' file not found" clangMissing)            # clang
if(gccMissing EQUAL -1 AND clangMissing EQUAL -1)
  message(FATAL_ERROR "${TARGET} failed, but not for the missing \"${HEADER}\":\n${output}")
endif()
message(STATUS "${TARGET}: \"${HEADER}\" is not visible, as required")
