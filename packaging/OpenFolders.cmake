# Run by cpack on the files of a package: whoever makes it, everybody may read its folders.
file(CHMOD_RECURSE ${CPACK_TEMPORARY_DIRECTORY}
    DIRECTORY_PERMISSIONS
        OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
