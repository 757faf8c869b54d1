# Run at install time: installs the desktop entry with the full path of the installed program.
# In: QUOVARA_BINDIR and QUOVARA_APPLICATIONS_DIR (absolute, or relative to the install
# prefix), QUOVARA_DESKTOP_IN (the template), QUOVARA_WORK_DIR (a folder for the written entry).

set(bindir "${QUOVARA_BINDIR}")
if(NOT IS_ABSOLUTE "${bindir}")
    set(bindir "${CMAKE_INSTALL_PREFIX}/${bindir}")
endif()
set(program "${bindir}/quovara")

# The Exec key: a path holding a reserved character is written in double quotes, with the
# characters '"', '`', '$' and '\' escaped by a backslash; the key being a string value, every
# backslash is then written twice.
string(REGEX MATCH "[ \t\n\"'\\\\><~|&;$*?#()`]" reserved "${program}")
if(reserved)
    string(REPLACE "\\" "\\\\" program "${program}")
    string(REPLACE "\"" "\\\"" program "${program}")
    string(REPLACE "`" "\\`" program "${program}")
    string(REPLACE "$" "\\$" program "${program}")
    set(program "\"${program}\"")
endif()
string(REPLACE "\\" "\\\\" program "${program}")

set(QUOVARA_EXEC "${program}")
# Each install writes its own copy, so that installs into different prefixes at the same time
# do not meet.
string(RANDOM LENGTH 12 tag)
set(written "${QUOVARA_WORK_DIR}/quovara-${tag}.desktop")
configure_file("${QUOVARA_DESKTOP_IN}" "${written}" @ONLY)

set(applications "${QUOVARA_APPLICATIONS_DIR}")
if(NOT IS_ABSOLUTE "${applications}")
    set(applications "${CMAKE_INSTALL_PREFIX}/${applications}")
endif()
file(INSTALL DESTINATION "${applications}" TYPE FILE FILES "${written}" RENAME quovara.desktop)
file(REMOVE "${written}")
