# Eternal Terminal's server side, built from its source and shipped with the app, so that nobody
# has to install it by hand. Its libraries come from the distribution (libsodium, protobuf,
# OpenSSL, zlib, libunwind, libutempter). The source is, in this order: QUIVRA_ET_SOURCE (a
# tarball or an unpacked tree), the tarball in ../shared/et beside the repository, the upstream
# repository at a pinned commit. Without any of them the app builds without its own server and
# looks for etserver on PATH, as before.
#
# A build takes minutes, so its stripped results are kept outside the build tree, keyed on the
# source's hash and how it was built: another checkout on the same machine copies them.
#
# Sets QUIVRA_ET_BUNDLED, QUIVRA_ET_BIN_DIR (etserver, etterminal and the test-only client et)
# and the target quivra-et that puts etserver and etterminal beside the quivramac executable.

include(ExternalProject)

set(QUIVRA_ET_VERSION 7.0.0)
set(et_commit 7656a32a5bc15c6746726a27a5a4ba1e468fab6e)
set(et_repository https://github.com/MisterTea/EternalTerminal.git)
cmake_path(SET et_beside NORMALIZE
    ${PROJECT_SOURCE_DIR}/../shared/et/EternalTerminal-et-v${QUIVRA_ET_VERSION}.tar.gz)

set(QUIVRA_ET_SOURCE "" CACHE PATH
    "Eternal Terminal's source, a tarball or an unpacked tree (empty: ../shared/et, then git)")
option(QUIVRA_ET_FETCH "Fetch Eternal Terminal's source with git when no other is at hand" ON)
if(NOT "$ENV{XDG_CACHE_HOME}" STREQUAL "")
    set(et_default_store "$ENV{XDG_CACHE_HOME}/quivramac")
elseif(NOT "$ENV{HOME}" STREQUAL "")
    set(et_default_store "$ENV{HOME}/.cache/quivramac")
else()
    set(et_default_store "${CMAKE_BINARY_DIR}/et-cache")
endif()
set(QUIVRA_ET_CACHE_DIR "${et_default_store}" CACHE PATH
    "Where built Eternal Terminal binaries are kept for every build tree on this machine")

# What else decides the binaries: the options, the compiler and the system's libraries. Raise
# the recipe number when the build below changes.
set(et_options -DCMAKE_BUILD_TYPE=Release -DDISABLE_VCPKG=ON -DDISABLE_TELEMETRY=ON
    -DDISABLE_SENTRY=ON -DBUILD_TESTING=OFF)
cmake_host_system_information(RESULT et_system QUERY DISTRIB_ID DISTRIB_VERSION_ID)
set(et_recipe "1;${et_options};${CMAKE_CXX_COMPILER_ID};${CMAKE_CXX_COMPILER_VERSION};${et_system}")

# Reads a source, a tarball or a tree, and sets et_kind and et_hash.
function(et_describe path)
    if(IS_DIRECTORY "${path}")
        # A tree is hashed file by file, leaving out what this build does not use: git's data,
        # build output, the package manager, the crash reporter and the test framework.
        file(GLOB_RECURSE files LIST_DIRECTORIES false RELATIVE "${path}" "${path}/*")
        list(FILTER files EXCLUDE REGEX
            "^(\\.git|build|external_imported/(vcpkg|sentry-native|Catch2))/")
        list(SORT files)
        set(sums "")
        foreach(file IN LISTS files)
            file(SHA256 "${path}/${file}" sum)
            string(APPEND sums "${file} ${sum}\n")
        endforeach()
        string(SHA256 hash "${sums}")
        set(et_kind tree PARENT_SCOPE)
    else()
        file(SHA256 "${path}" hash)
        set(et_kind tarball PARENT_SCOPE)
    endif()
    set(et_hash ${hash} PARENT_SCOPE)
endfunction()

function(et_store_for source_hash)
    string(SHA256 key "${source_hash};${et_recipe}")
    string(SUBSTRING ${key} 0 16 key)
    set(et_store "${QUIVRA_ET_CACHE_DIR}/eternal-terminal-${QUIVRA_ET_VERSION}-${key}" PARENT_SCOPE)
endfunction()

set(et_source "")
set(et_missing "")
if(QUIVRA_ET_SOURCE)
    if(NOT EXISTS "${QUIVRA_ET_SOURCE}")
        message(FATAL_ERROR "QUIVRA_ET_SOURCE: ${QUIVRA_ET_SOURCE} does not exist")
    endif()
    set(et_source "${QUIVRA_ET_SOURCE}")
elseif(EXISTS "${et_beside}")
    set(et_source "${et_beside}")
endif()

if(et_source)
    et_describe("${et_source}")
    et_store_for(${et_hash})
else()
    # The commit id pins the content, so it is the key, and a cached build needs no fetch.
    set(et_kind tree)
    et_store_for(${et_commit})
    if(NOT EXISTS "${et_store}/etserver")
        find_package(Git QUIET)
        set(et_checkout "${QUIVRA_ET_CACHE_DIR}/eternal-terminal-source-${et_commit}")
        if(NOT QUIVRA_ET_FETCH)
            set(et_missing "no source at ${et_beside}, QUIVRA_ET_SOURCE is empty and QUIVRA_ET_FETCH is off")
        elseif(NOT GIT_FOUND)
            set(et_missing "no source at ${et_beside} and no git to fetch it")
        elseif(NOT EXISTS "${et_checkout}/CMakeLists.txt")
            # At configure time, so that a machine without network still builds, without it.
            message(STATUS "Fetching Eternal Terminal ${QUIVRA_ET_VERSION} (${et_commit}) from ${et_repository}")
            set(partial "${et_checkout}.partial")
            file(REMOVE_RECURSE "${partial}")
            file(MAKE_DIRECTORY "${partial}")
            set(git ${GIT_EXECUTABLE} -C "${partial}")
            set(error "")
            foreach(step "init -q" "fetch -q --depth 1 ${et_repository} ${et_commit}"
                    "-c advice.detachedHead=false checkout -q FETCH_HEAD")
                separate_arguments(step UNIX_COMMAND "${step}")
                execute_process(COMMAND ${git} ${step} RESULT_VARIABLE failed
                    ERROR_VARIABLE error TIMEOUT 900)
                if(failed)
                    break()
                endif()
            endforeach()
            execute_process(COMMAND ${git} rev-parse HEAD OUTPUT_VARIABLE head
                OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
            if(head STREQUAL et_commit)
                file(RENAME "${partial}" "${et_checkout}")
            else()
                file(REMOVE_RECURSE "${partial}")
                string(STRIP "${error}" error)
                string(REGEX REPLACE "\n.*" "" error "${error}")
                set(et_missing "no source at ${et_beside} and fetching ${et_repository} failed (${error})")
            endif()
        endif()
        if(NOT et_missing)
            set(et_source "${et_checkout}")
        endif()
    endif()
endif()

set(QUIVRA_ET_BUNDLED OFF)
if(et_missing)
    message(NOTICE "-- QuivraMac is built WITHOUT its own Eternal Terminal server: ${et_missing}; "
        "the app will look for etserver on PATH (set QUIVRA_ET_SOURCE to a tarball or tree).")
    return()
endif()
set(QUIVRA_ET_BUNDLED ON)
set(et_programs etserver etterminal et)
list(TRANSFORM et_programs PREPEND "${et_store}/" OUTPUT_VARIABLE et_stored)

if(EXISTS "${et_store}/etserver")
    message(STATUS "Eternal Terminal ${QUIVRA_ET_VERSION}: built before, in ${et_store}")
    add_custom_target(eternal-terminal)
else()
    message(STATUS "Eternal Terminal ${QUIVRA_ET_VERSION}: built from ${et_source} "
        "(about 5 minutes on 2 cores), then kept in ${et_store}")
    if(et_kind STREQUAL tarball)
        set(et_where URL "${et_source}" URL_HASH SHA256=${et_hash} DOWNLOAD_EXTRACT_TIMESTAMP ON)
    else()
        set(et_where SOURCE_DIR "${et_source}" DOWNLOAD_COMMAND "")
    endif()
    cmake_host_system_information(RESULT et_jobs QUERY NUMBER_OF_LOGICAL_CORES)
    # Paths inside the binaries name the release, not this machine's folders.
    set(et_prefix_map "-ffile-prefix-map=<SOURCE_DIR>=et-${QUIVRA_ET_VERSION}")
    ExternalProject_Add(eternal-terminal
        ${et_where}
        PREFIX "${CMAKE_BINARY_DIR}/eternal-terminal"
        CMAKE_ARGS ${et_options} -DCMAKE_CXX_FLAGS=${et_prefix_map} -DCMAKE_C_FLAGS=${et_prefix_map}
        BUILD_COMMAND ${CMAKE_COMMAND} --build <BINARY_DIR> -j ${et_jobs}
            --target etserver etterminal et
        INSTALL_COMMAND ${CMAKE_COMMAND} -DBUILD=<BINARY_DIR> -DSOURCE=<SOURCE_DIR>
            -DSTORE=${et_store} -DSTRIP=${CMAKE_STRIP} -DVERSION=${QUIVRA_ET_VERSION}
            -P ${CMAKE_CURRENT_LIST_DIR}/StoreEternalTerminal.cmake
        BUILD_BYPRODUCTS ${et_stored}
        USES_TERMINAL_CONFIGURE ON USES_TERMINAL_BUILD ON)
endif()

# etserver beside the executable, where the app looks first; et for the tests.
set(QUIVRA_ET_BIN_DIR "${CMAKE_BINARY_DIR}/eternal-terminal/bin")
set(et_main "${PROJECT_BINARY_DIR}/src/main")
add_custom_command(
    OUTPUT ${QUIVRA_ET_BIN_DIR}/etserver ${QUIVRA_ET_BIN_DIR}/etterminal ${QUIVRA_ET_BIN_DIR}/et
        ${et_main}/etserver ${et_main}/etterminal ${CMAKE_BINARY_DIR}/eternal-terminal/NOTICES
    COMMAND ${CMAKE_COMMAND} -E make_directory ${QUIVRA_ET_BIN_DIR} ${et_main}
    COMMAND ${CMAKE_COMMAND} -E copy ${et_stored} ${QUIVRA_ET_BIN_DIR}
    COMMAND ${CMAKE_COMMAND} -E copy ${et_store}/etserver ${et_store}/etterminal ${et_main}
    COMMAND ${CMAKE_COMMAND} -E copy ${et_store}/NOTICES ${CMAKE_BINARY_DIR}/eternal-terminal
    DEPENDS eternal-terminal ${et_stored}
    COMMENT "Eternal Terminal ${QUIVRA_ET_VERSION} beside quivramac")
add_custom_target(quivra-et ALL DEPENDS ${et_main}/etserver)
set(QUIVRA_ET_NOTICES "${CMAKE_BINARY_DIR}/eternal-terminal/NOTICES")

# Installed: etserver where the app looks in its own tree, etterminal on the PATH that an SSH
# login gets, since the client starts it there by name.
install(PROGRAMS ${et_main}/etserver DESTINATION ${CMAKE_INSTALL_LIBEXECDIR}/quivramac)
install(PROGRAMS ${et_main}/etterminal DESTINATION ${CMAKE_INSTALL_BINDIR})
