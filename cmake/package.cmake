# What `cmake --install` and the packages hold beside the programs, and how the packages are made.
# The pages keep the places that they have in the project, so that the links between them hold.
file(GLOB pages CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/docs/*.md)
file(GLOB pictures CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/docs/img/*.svg)
install(FILES README.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(FILES ${pages} DESTINATION ${CMAKE_INSTALL_DOCDIR}/docs)
install(FILES ${pictures} DESTINATION ${CMAKE_INSTALL_DOCDIR}/docs/img)
install(DIRECTORY examples DESTINATION ${CMAKE_INSTALL_DOCDIR})
if(NOT WIN32)
  install(FILES docs/tarn.1 docs/tarneval.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
endif()

set(CPACK_PACKAGE_NAME tarn)
set(CPACK_PACKAGE_CONTACT "Tarn maintainers <maintainers@tarn.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY
  "full-screen text editor with its own programming language inside")
set(CPACK_PACKAGE_DESCRIPTION
"Tarn edits raw bytes, any bytes, in files up to a gigabyte, as fast in the
middle of the largest as in an empty one. Undo walks back through every state
that a text has had, across saves too.
.
One key evaluates the text, or the selection, as a program of a small, lazy,
purely functional language, with integers of any length, exact binary numbers,
strings and arrays, and shows the value in the status row. The program tarneval
does the same for scripts.")
set(CPACK_PACKAGE_FILE_NAME "tarn-${PROJECT_VERSION}-win64")
set(CPACK_STRIP_FILES ON)
set(CPACK_INCLUDE_TOPLEVEL_DIRECTORY ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_SOURCE_DIR}/cmake/debianfiles.cmake)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION editors)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
include(CPack)
