# Run at install time: writes the desktop entry with the full path of the installed program.
# In: QUOVARA_BINDIR (absolute, or relative to the install prefix), QUOVARA_DESKTOP_IN,
# QUOVARA_DESKTOP_OUT.

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
configure_file("${QUOVARA_DESKTOP_IN}" "${QUOVARA_DESKTOP_OUT}" @ONLY)
