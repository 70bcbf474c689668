# Installs the build, then looks at it as a stranger would: without the source tree and the build folder.
# Run by ctest, which says where SOURCE and BUILD are, and the CONFIG, LIBDIR and COMPILER of the build.
cmake_policy(VERSION 3.25)
set(work ${BUILD}/embedTest)
set(prefix ${work}/prefix)
file(REMOVE_RECURSE ${work})

# run(<variable> <command>...) gives what the command prints; a failure ends the test.
function(run variable)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT result EQUAL 0)
    list(JOIN ARGN " " command)
    message(FATAL_ERROR "${command}\nended with ${result}:\n${output}")
  endif()
  set(${variable} "${output}" PARENT_SCOPE)
endfunction()

run(ignored ${CMAKE_COMMAND} --install ${BUILD} --prefix ${prefix} --config ${CONFIG})

# A header that is installed needs only headers that are.
file(GLOB_RECURSE headers RELATIVE ${prefix}/include ${prefix}/include/*.h)
list(LENGTH headers count)
if(count LESS 100)
  message(SEND_ERROR "only ${count} headers were installed")
endif()
foreach(header IN LISTS headers)
  file(STRINGS ${prefix}/include/${header} lines REGEX "^#include \"")
  foreach(line IN LISTS lines)
    string(REGEX REPLACE "^#include \"([^\"]+)\".*" "\\1" included "${line}")
    if(NOT included IN_LIST headers)
      message(SEND_ERROR "${header} includes ${included}, which is not installed")
    endif()
  endforeach()
endforeach()

# Package files serve wherever the tree is moved to, and on machines without the sources.
file(GLOB packageFiles ${prefix}/${LIBDIR}/cmake/ZkEditor/*.cmake)
foreach(file IN LISTS packageFiles)
  file(READ ${file} text)
  foreach(path ${SOURCE} ${BUILD})
    string(FIND "${text}" ${path} found)
    if(NOT found EQUAL -1)
      message(SEND_ERROR "${file} names ${path}")
    endif()
  endforeach()
endforeach()
file(RENAME ${prefix} ${work}/moved)
set(prefix ${work}/moved)

# The example, as it was installed, finds the package, builds and runs.
set(example ${prefix}/share/doc/libzkeditor-dev/examples/embed)
run(ignored ${CMAKE_COMMAND} -S ${example} -B ${work}/example -G Ninja -DCMAKE_PREFIX_PATH=${prefix} -DCMAKE_CXX_COMPILER=${COMPILER}
  "-DCMAKE_CXX_FLAGS=-Wall -Wextra -Werror")
run(ignored ${CMAKE_COMMAND} --build ${work}/example)
set(ENV{QT_QPA_PLATFORM} offscreen)
set(ENV{XDG_DATA_HOME} ${work}/data)
set(ENV{LC_ALL} C.UTF-8)
run(output ${work}/example/kettle --demo)
foreach(line "kettle-1: power is 1500" "kettle-2: power is 1500" "to take back: Change of Power (2 objects)"
    "kettle-1: power is 2000" "kettle-2: power is 1200")
  string(FIND "${output}" "${line}\n" found)
  if(found EQUAL -1)
    message(SEND_ERROR "the example does not say '${line}' but\n${output}")
  endif()
endforeach()

# The application runs from there with the libraries beside it, and the plug-in loads.
run(output ${prefix}/bin/zkauthor --version)
run(output ldd ${prefix}/bin/zkauthor ${prefix}/${LIBDIR}/qt6/plugins/designer/zkdesigner.so)
if(NOT output MATCHES "libzkeditor" OR output MATCHES "not found" OR output MATCHES "=> ${BUILD}/lib")
  message(SEND_ERROR "the libraries were found so:\n${output}")
endif()
file(REMOVE_RECURSE ${work})
