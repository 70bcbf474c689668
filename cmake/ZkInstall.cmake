# What `cmake --install` puts where, and the Debian packages that `cpack -G DEB` makes of it. Read last, when all targets
# are known. Three components: "runtime" (libraries, translations), "development" (headers, package files for CMake, the
# form designer's plug-in, documentation) and "application".
set(zkLibraries zkcore zkwidgetsupport zkeditor)
# The same names for who adds the source tree to a project and who finds the installed package.
foreach(library IN LISTS zkLibraries)
  add_library(ZkEditor::${library} ALIAS ${library})
endforeach()
if(NOT ZK_INSTALL)
  return()
endif()

include(GNUInstallDirs)
include(CMakePackageConfigHelpers)
include(ZkPublicHeaders)
# Before 1.0 each minor version may change the binary interface.
set(zkAbi ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
set(zkPackageFiles ${CMAKE_INSTALL_LIBDIR}/cmake/ZkEditor)
set(zkPlugins ${CMAKE_INSTALL_LIBDIR}/qt6/plugins/designer)
set(zkDevelopmentDocs ${CMAKE_INSTALL_DATADIR}/doc/libzkeditor-dev)

# zk_rpath(<target> <folder>) lets what is installed in the folder find the libraries from there, wherever the whole is
# unpacked.
function(zk_rpath target folder)
  file(RELATIVE_PATH path /prefix/${folder} /prefix/${CMAKE_INSTALL_LIBDIR})
  set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN/${path}")
endfunction()

# Libraries
set_target_properties(${zkLibraries} PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION ${zkAbi} INSTALL_RPATH "$ORIGIN")
install(TARGETS ${zkLibraries} EXPORT ZkEditorTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development
  INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(DIRECTORY ${PROJECT_BINARY_DIR}/translations DESTINATION ${CMAKE_INSTALL_DATADIR}/zkeditor COMPONENT runtime
  OPTIONAL FILES_MATCHING PATTERN "*.qm")

# Headers, under the same names as in the source tree
zk_public_headers(zkHeaders ${PROJECT_SOURCE_DIR})
foreach(header IN LISTS zkHeaders)
  get_filename_component(folder ${header} DIRECTORY)
  install(FILES ${PROJECT_SOURCE_DIR}/${header} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${folder} COMPONENT development)
  # Whether a header is public is seen by reading it.
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/${header})
endforeach()

# What find_package(ZkEditor CONFIG) reads
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/ZkEditorConfig.cmake.in ${PROJECT_BINARY_DIR}/ZkEditorConfig.cmake
  INSTALL_DESTINATION ${zkPackageFiles} NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/ZkEditorConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/ZkEditorConfig.cmake ${PROJECT_BINARY_DIR}/ZkEditorConfigVersion.cmake
  DESTINATION ${zkPackageFiles} COMPONENT development)
install(EXPORT ZkEditorTargets NAMESPACE ZkEditor:: DESTINATION ${zkPackageFiles} COMPONENT development)

# The form designer's plug-in
if(TARGET zkdesigner)
  zk_rpath(zkdesigner ${zkPlugins})
  install(TARGETS zkdesigner LIBRARY DESTINATION ${zkPlugins} COMPONENT development)
endif()

# Documentation for developers, with the example that docs/embedding.md explains
file(GLOB documents CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/docs/*.md ${PROJECT_SOURCE_DIR}/docs/*.svg
  ${PROJECT_SOURCE_DIR}/docs/*.png)
install(FILES ${documents} DESTINATION ${zkDevelopmentDocs} COMPONENT development)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/examples DESTINATION ${zkDevelopmentDocs} COMPONENT development)

# The application and what desktops know it by
zk_rpath(zkauthor ${CMAKE_INSTALL_BINDIR})
install(TARGETS zkauthor RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT application)
install(FILES ${PROJECT_SOURCE_DIR}/packaging/zkauthor.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications
  COMPONENT application)
install(FILES ${PROJECT_SOURCE_DIR}/packaging/zkauthor.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages
  COMPONENT application)
set(zkIcons ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable)
install(FILES ${PROJECT_SOURCE_DIR}/packages/editor/app.svg DESTINATION ${zkIcons}/apps RENAME zkauthor.svg
  COMPONENT application)
install(FILES ${PROJECT_SOURCE_DIR}/packaging/zkdoc.svg DESTINATION ${zkIcons}/mimetypes RENAME application-x-zkdoc+xml.svg
  COMPONENT application)
file(GLOB samples CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/samples/*.zkdoc)
install(FILES ${samples} DESTINATION ${CMAKE_INSTALL_DATADIR}/zkauthor/samples COMPONENT application)

# Debian packages
# zk_package(<component> <name>) names a component's package and puts the licence where Debian expects it.
function(zk_package component name)
  string(TOUPPER ${component} upper)
  set(CPACK_DEBIAN_${upper}_PACKAGE_NAME ${name} PARENT_SCOPE)
  install(FILES ${PROJECT_SOURCE_DIR}/LICENSE DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${name} RENAME copyright
    COMPONENT ${component})
endfunction()
zk_package(runtime libzkeditor${zkAbi})
zk_package(development libzkeditor-dev)
zk_package(application zkauthor)
set(CPACK_PACKAGE_NAME zkeditor)
set(CPACK_PACKAGE_VENDOR "the zkeditor authors")
set(CPACK_PACKAGE_CONTACT "The zkeditor authors <zkeditor@localhost>")
set(CPACK_PACKAGE_CHECKSUM SHA256)
set(CPACK_PACKAGING_INSTALL_PREFIX ${CMAKE_INSTALL_PREFIX})
set(CPACK_COMPONENTS_ALL runtime development application)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_APPLICATION_PACKAGE_SECTION education)
set(sameRuntime "libzkeditor${zkAbi} (= ${PROJECT_VERSION})")
# The toolkit's own words in the languages of ours.
set(CPACK_DEBIAN_RUNTIME_PACKAGE_RECOMMENDS qt6-translations-l10n)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${sameRuntime}, qt6-base-dev")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SUGGESTS "designer-qt6")
set(CPACK_DEBIAN_APPLICATION_PACKAGE_DEPENDS "${sameRuntime}, qt6-translations-l10n")
set(CPACK_DEBIAN_RUNTIME_DESCRIPTION "editing widgets for documents made of parts - libraries
Forms drawn in the form designer bind themselves to what is selected, one part
or a hundred thousand, and every change goes through one undo history.")
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION "editing widgets for documents made of parts - development
Headers, package files for CMake, documentation, and the plug-in with which the
form designer offers the widgets.")
set(CPACK_DEBIAN_APPLICATION_DESCRIPTION "editor for interactive teaching models
Circuits, flowcharts and machines are put together from parts, edited in forms,
run, and printed.")
include(CPack)
