# Run by CPack on the files that it is about to pack.
set(files ${CPACK_TEMPORARY_DIRECTORY}/usr)

# More goes than CPack's own stripping takes: Debian's programs carry no notes of their compiler.
file(GLOB programs ${files}/bin/*)
execute_process(COMMAND strip --remove-section=.comment --remove-section=.note ${programs}
    COMMAND_ERROR_IS_FATAL ANY)

# Whoever builds may have any umask; the package's folders are everybody's to read.
file(CHMOD_RECURSE ${files} DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE
    GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
