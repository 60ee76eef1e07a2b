# What `cmake --install` and the packages hold beside the programs, and how the packages are made.
if(WIN32)
  install(FILES README.md docs/keys.md docs/language.md docs/builtins.md DESTINATION .)
else()
  install(FILES docs/tarn.1 docs/tarneval.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
  install(FILES README.md docs/keys.md docs/language.md docs/builtins.md
    DESTINATION ${CMAKE_INSTALL_DOCDIR})
  install(DIRECTORY examples DESTINATION ${CMAKE_INSTALL_DOCDIR} FILES_MATCHING PATTERN "*.tarn")
endif()

set(CPACK_PACKAGE_NAME tarn)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY
  "full-screen text editor with its own programming language inside")
set(CPACK_PACKAGE_CONTACT "Tarn maintainers <maintainers@tarn.invalid>")
set(CPACK_PACKAGE_FILE_NAME "tarn-${PROJECT_VERSION}-win64")
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGE_CHECKSUM "")
set(CPACK_INCLUDE_TOPLEVEL_DIRECTORY ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION editors)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
include(CPack)
