# Run by CPack for each package that it has made: CPack packs in the order in which a folder happens to list its files, so
# each package is packed again in the order of the names, with the time that SOURCE_DATE_EPOCH tells.
foreach(package IN LISTS CPACK_PACKAGE_FILES)
    execute_process(
        COMMAND "${CMAKE_CURRENT_LIST_DIR}/repack.sh" "${package}" "${CPACK_TOPLEVEL_DIRECTORY}/repack"
        COMMAND_ERROR_IS_FATAL ANY)
endforeach()
