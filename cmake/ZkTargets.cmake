# Shared rules of our own targets: warnings, sanitizers, one include root per target.

add_library(zk_options INTERFACE)
target_compile_options(zk_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror)
# GCC 12 and 13 see overlapping copies in optimised std::string concatenations where there are none (GCC bug 105651).
target_compile_options(zk_options INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
# In a source that includes several others GCC takes their unnamed namespaces for those of headers.
if(CMAKE_UNITY_BUILD)
  target_compile_options(zk_options INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-subobject-linkage>)
  # And Clang what stands in one of them for a shadow of what stands in another.
  target_compile_options(zk_options INTERFACE $<$<CXX_COMPILER_ID:Clang>:-Wno-shadow>)
endif()
# Which warnings keep the code from being built is what GCC decides; Clang builds it for the sanitizers only.
target_compile_options(zk_options INTERFACE $<$<CXX_COMPILER_ID:Clang>:-Wno-error>)
target_compile_definitions(zk_options INTERFACE QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_DISABLE_DEPRECATED_BEFORE=0x060400)
if(ZK_SANITIZE)
  # Checks of types at each call take a seventh of the compiler's time; what they would find, casts are tested for.
  target_compile_options(zk_options INTERFACE -fsanitize=${ZK_SANITIZE} -fno-sanitize=vptr,function
    -fno-omit-frame-pointer -fno-sanitize-recover=all)
  target_link_options(zk_options INTERFACE -fsanitize=${ZK_SANITIZE})
endif()
# Clang links what the sanitizers need to programs only: its libraries are not complete.
if(NOT (ZK_SANITIZE AND CMAKE_CXX_COMPILER_ID STREQUAL "Clang"))
  target_link_options(zk_options INTERFACE -Wl,--no-undefined)
endif()

# zk_include_root(<target> <folder relative to the source tree>...)
# Gives the target an include root of its own that shows only the named folders, so that an include of a folder
# which the target may not use does not compile. Files are included from the root: "zkcore/values/value.h".
function(zk_include_root target)
  set(root ${PROJECT_BINARY_DIR}/roots/${target})
  foreach(folder IN LISTS ARGN)
    get_filename_component(parent ${root}/${folder} DIRECTORY)
    file(MAKE_DIRECTORY ${parent})
    file(CREATE_LINK ${PROJECT_SOURCE_DIR}/${folder} ${root}/${folder} SYMBOLIC)
  endforeach()
  target_include_directories(${target} PUBLIC $<BUILD_INTERFACE:${root}>)
endfunction()

# zk_sources(<variable> <folder>...) collects the sources and headers of folders.
function(zk_sources variable)
  set(found)
  foreach(folder IN LISTS ARGN)
    file(GLOB files CONFIGURE_DEPENDS ${folder}/*.cpp ${folder}/*.h)
    list(APPEND found ${files})
  endforeach()
  set(${variable} ${found} PARENT_SCOPE)
endfunction()
