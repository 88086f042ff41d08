# Runs one script test: ${ORRERY} runs ${SCRIPT} from the current folder
# (tests/scripts) with standard error merged into standard output, and the
# result must equal ${EXPECTED} byte for byte.
#
# Beside NAME.orr and NAME.out a test may have:
#   NAME.args    the command line, one argument per line (no ";"), instead of "NAME.orr"
#                (@SCRIPT@ stands for the script's file name); when it holds "-"
#                the script is given on standard input
#   NAME.env     environment settings, one VAR=VALUE per line (@BIN_DIR@ stands
#                for the folder of the orrery program)
#   NAME.status  the expected exit status
cmake_minimum_required(VERSION 3.25)

get_filename_component(name ${SCRIPT} NAME_WE)
get_filename_component(folder ${SCRIPT} DIRECTORY)
get_filename_component(script_file ${SCRIPT} NAME)
get_filename_component(bin_dir ${ORRERY} DIRECTORY)

# Lines of a file as a list, placeholders replaced; empty lines are kept out.
function(read_lines file out)
  file(STRINGS ${file} lines)
  set(result "")
  foreach(line IN LISTS lines)
    string(REPLACE "@SCRIPT@" "${script_file}" line "${line}")
    string(REPLACE "@BIN_DIR@" "${bin_dir}" line "${line}")
    list(APPEND result "${line}")
  endforeach()
  set(${out} "${result}" PARENT_SCOPE)
endfunction()

set(arguments ${script_file})
if(EXISTS ${folder}/${name}.args)
  read_lines(${folder}/${name}.args arguments)
endif()
set(input "")
if("-" IN_LIST arguments)
  set(input INPUT_FILE ${SCRIPT})
endif()
set(environment "")
if(EXISTS ${folder}/${name}.env)
  read_lines(${folder}/${name}.env environment)
endif()

execute_process(
  COMMAND ${CMAKE_COMMAND} -E env ${environment} ${ORRERY} ${arguments}
  WORKING_DIRECTORY ${folder}
  ${input}
  OUTPUT_VARIABLE actual
  ERROR_VARIABLE actual
  RESULT_VARIABLE status)

# Paths of the build folder vary between machines; outputs name it @BIN_DIR@.
string(REPLACE "${bin_dir}" "@BIN_DIR@" actual "${actual}")
file(READ ${EXPECTED} expected)
set(failed FALSE)
if(NOT actual STREQUAL expected)
  set(failed TRUE)
  set(report_dir ${bin_dir}/../script_output)
  file(MAKE_DIRECTORY ${report_dir})
  file(WRITE ${report_dir}/${name}.actual "${actual}")
  message("Output of ${script_file} differs from ${name}.out (actual output kept in ${report_dir}/${name}.actual):")
  find_program(DIFF diff)
  if(DIFF)
    execute_process(COMMAND ${DIFF} -u ${EXPECTED} ${report_dir}/${name}.actual)
  else()
    message("--- expected\n${expected}\n+++ actual\n${actual}")
  endif()
endif()

if(EXISTS ${folder}/${name}.status)
  file(STRINGS ${folder}/${name}.status expected_status LIMIT_COUNT 1)
  string(STRIP "${expected_status}" expected_status)
  if(NOT status STREQUAL expected_status)
    set(failed TRUE)
    message("Exit status of ${script_file} was ${status}, expected ${expected_status}.")
  endif()
endif()

if(failed)
  message(FATAL_ERROR "script test ${name} failed")
endif()
