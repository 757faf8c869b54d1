# Run at install time: writes the desktop entry and the file-manager actions with the full path
# of the installed program, and installs them. The path is only known at install time
# (cmake --install --prefix may choose another prefix), so the files are written then.
# In: QUOVARA_BINDIR and QUOVARA_DATADIR (absolute, or relative to the install prefix),
# QUOVARA_WORK_DIR (a folder for the written files).

cmake_policy(VERSION 3.25)

set(bindir "${QUOVARA_BINDIR}")
if(NOT IS_ABSOLUTE "${bindir}")
    set(bindir "${CMAKE_INSTALL_PREFIX}/${bindir}")
endif()
set(datadir "${QUOVARA_DATADIR}")
if(NOT IS_ABSOLUTE "${datadir}")
    set(datadir "${CMAKE_INSTALL_PREFIX}/${datadir}")
endif()
set(program "${bindir}/quovara")

# The program in an Exec key: a path holding a reserved character is written in double quotes,
# with the characters '"', '`', '$' and '\' escaped by a backslash (GLib's and KDE's command-line
# parsers read this the same way); the key being a string value, every backslash is then
# written twice.
string(REGEX MATCH "[ \t\n\"'\\\\><~|&;$*?#()`]" reserved "${program}")
if(reserved)
    string(REPLACE "\\" "\\\\" program "${program}")
    string(REPLACE "\"" "\\\"" program "${program}")
    string(REPLACE "`" "\\`" program "${program}")
    string(REPLACE "$" "\\$" program "${program}")
    set(program "\"${program}\"")
endif()
string(REPLACE "\\" "\\\\" program "${program}")
# Desktop entries take "%%" for a percent sign; Nemo's actions have no such escape and read the
# character as it is.
string(REPLACE "%" "%%" desktop_exec "${program}")
set(nemo_exec "${program}")

set(here "${CMAKE_CURRENT_LIST_DIR}")
# template | folder under the data folder | installed name | plain or executable
set(entries
    "quovara.desktop.in|applications|quovara.desktop|plain"
    "file-manager/kde-quovara.desktop.in|kio/servicemenus|quovara.desktop|executable"
    "file-manager/kde-quovara-add.desktop.in|kio/servicemenus|quovara-add.desktop|executable"
    "file-manager/quovara-extract.nemo_action.in|nemo/actions|quovara-extract.nemo_action|plain"
    "file-manager/quovara-extract-here.nemo_action.in|nemo/actions|quovara-extract-here.nemo_action|plain"
    "file-manager/quovara-convert-zip.nemo_action.in|nemo/actions|quovara-convert-zip.nemo_action|plain"
    "file-manager/quovara-convert-7z.nemo_action.in|nemo/actions|quovara-convert-7z.nemo_action|plain"
    "file-manager/quovara-add.nemo_action.in|nemo/actions|quovara-add.nemo_action|plain"
    "file-manager/quovara-sfx.nemo_action.in|nemo/actions|quovara-sfx.nemo_action|plain"
    "file-manager/caja-quovara-extract.desktop.in|file-manager/actions|quovara-extract.desktop|plain"
    "file-manager/caja-quovara-extract-here.desktop.in|file-manager/actions|quovara-extract-here.desktop|plain"
    "file-manager/caja-quovara-convert-zip.desktop.in|file-manager/actions|quovara-convert-zip.desktop|plain"
    "file-manager/caja-quovara-convert-7z.desktop.in|file-manager/actions|quovara-convert-7z.desktop|plain"
    "file-manager/caja-quovara-add.desktop.in|file-manager/actions|quovara-add.desktop|plain"
    "file-manager/caja-quovara-sfx.desktop.in|file-manager/actions|quovara-sfx.desktop|plain")

foreach(entry IN LISTS entries)
    string(REPLACE "|" ";" fields "${entry}")
    list(GET fields 0 template)
    list(GET fields 1 folder)
    list(GET fields 2 name)
    list(GET fields 3 mode)
    if(template MATCHES "\\.nemo_action\\.in$")
        set(QUOVARA_EXEC "${nemo_exec}")
    else()
        set(QUOVARA_EXEC "${desktop_exec}")
    endif()
    set(permissions OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
    if(mode STREQUAL "executable")
        # KDE runs a service menu only when it is marked executable.
        list(APPEND permissions OWNER_EXECUTE GROUP_EXECUTE WORLD_EXECUTE)
    endif()
    # Each install writes its own copy, so that installs into different prefixes at the same
    # time do not meet.
    string(RANDOM LENGTH 12 tag)
    set(written "${QUOVARA_WORK_DIR}/entry-${tag}-${name}")
    configure_file("${here}/${template}" "${written}" @ONLY)
    file(INSTALL DESTINATION "${datadir}/${folder}" TYPE FILE FILES "${written}" RENAME "${name}"
         PERMISSIONS ${permissions})
    file(REMOVE "${written}")
endforeach()
