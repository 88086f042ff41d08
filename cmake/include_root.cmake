# orrery_include_root(TARGET SCOPE FOLDER...) gives TARGET an include root of its
# own in the build tree. The root holds nothing but links named after the given
# source folders (relative to the project: "shell", "tests/support"), so that
# #include "shell/eval/interpreter.hpp" resolves while "platform/src/..." or
# "diagnostic/..." does not: each target sees the folders it is allowed to see.
function(orrery_include_root target scope)
  set(root ${CMAKE_BINARY_DIR}/include_roots/${target})
  foreach(folder IN LISTS ARGN)
    if(NOT IS_DIRECTORY ${PROJECT_SOURCE_DIR}/${folder})
      message(FATAL_ERROR "orrery_include_root(${target}): no folder ${folder}")
    endif()
    get_filename_component(parent ${root}/${folder} DIRECTORY)
    file(MAKE_DIRECTORY ${parent})
    file(CREATE_LINK ${PROJECT_SOURCE_DIR}/${folder} ${root}/${folder} SYMBOLIC)
  endforeach()
  target_include_directories(${target} ${scope} ${root})
endfunction()
