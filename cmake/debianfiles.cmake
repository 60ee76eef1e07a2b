# Run by CPack on the tree that becomes a package: gives the Debian package the files that Debian
# wants in each, packs the manual pages, and takes from the programs what nothing reads.
if(NOT CPACK_GENERATOR STREQUAL DEB)
  return()
endif()
set(packaging ${CMAKE_CURRENT_LIST_DIR}/../packaging)
set(doc ${CPACK_TEMPORARY_DIRECTORY}/usr/share/doc/tarn)
file(COPY ${packaging}/copyright ${packaging}/changelog DESTINATION ${doc}
  FILE_PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
file(GLOB topack ${doc}/changelog ${CPACK_TEMPORARY_DIRECTORY}/usr/share/man/man1/*.1)
execute_process(COMMAND gzip -9n ${topack} COMMAND_ERROR_IS_FATAL ANY)
file(GLOB programs ${CPACK_TEMPORARY_DIRECTORY}/usr/bin/*)
execute_process(COMMAND strip --remove-section=.comment --remove-section=.note ${programs}
  COMMAND_ERROR_IS_FATAL ANY)
