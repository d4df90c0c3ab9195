# Strips Eternal Terminal's programs and keeps them, with the licences of what is compiled into
# them, in STORE. The folder appears whole or not at all: other build trees may read it.
# Usage: cmake -DBUILD=DIR -DSOURCE=DIR -DSTORE=DIR -DSTRIP=PROGRAM -P StoreEternalTerminal.cmake
string(RANDOM LENGTH 8 suffix)
set(partial "${STORE}.partial-${suffix}")
file(MAKE_DIRECTORY "${partial}")
foreach(program etserver etterminal et)
    file(COPY_FILE "${BUILD}/${program}" "${partial}/${program}")
    execute_process(COMMAND "${STRIP}" "${partial}/${program}" COMMAND_ERROR_IS_FATAL ANY)
endforeach()

# Eternal Terminal's own licence first, then the libraries it carries in external_imported/ and
# compiles in (not its test framework, build helpers or the disabled crash reporter).
file(READ "${SOURCE}/LICENSE" notices)
set(notices "Eternal Terminal ${VERSION}\n\n${notices}")
foreach(library PlatformFolders ThreadPool UniversalStacktrace base64 cpp-httplib cxxopts
        easyloggingpp json msgpack-c simpleini sole)
    file(GLOB licences "${SOURCE}/external_imported/${library}/LICENSE*"
        "${SOURCE}/external_imported/${library}/COPYING*")
    foreach(licence IN LISTS licences)
        file(READ "${licence}" text)
        string(APPEND notices "\n-----\n${library} (compiled into etserver and etterminal)\n\n${text}")
    endforeach()
endforeach()
file(WRITE "${partial}/NOTICES" "${notices}")

file(REMOVE_RECURSE "${STORE}")
file(RENAME "${partial}" "${STORE}")
