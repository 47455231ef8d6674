# Run by CPack on what it has packed, for what it has no variables: the field Multi-Arch, and what programs that link
# the library depend on (its own way takes the Designer's plug-in for a library, too). The ldconfig scripts that it
# writes beside the trigger go.
foreach(package IN LISTS CPACK_PACKAGE_FILES)
    if(NOT package MATCHES "/libdevview[^/]*$")
        continue()
    endif()
    set(tree ${package}.tree)
    file(REMOVE_RECURSE ${tree})
    execute_process(COMMAND dpkg-deb --raw-extract ${package} ${tree} COMMAND_ERROR_IS_FATAL ANY)
    file(READ ${tree}/DEBIAN/control control)
    string(STRIP "${control}" control)
    file(WRITE ${tree}/DEBIAN/control "${control}\nMulti-Arch: same\n")
    if(package MATCHES "/libdevview([0-9]+)_")
        set(soversion ${CMAKE_MATCH_1})
        file(WRITE ${tree}/DEBIAN/shlibs "libdevView ${soversion} libdevview${soversion} (>= ${CPACK_PACKAGE_VERSION})\n")
    endif()
    file(REMOVE ${tree}/DEBIAN/postinst ${tree}/DEBIAN/postrm)
    execute_process(COMMAND dpkg-deb --root-owner-group --build ${tree} ${package}
        OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
    file(REMOVE_RECURSE ${tree})
endforeach()
