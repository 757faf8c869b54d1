# Run at install time after a direct install (no DESTDIR staging): makes the new MIME type,
# the file association and the icons known to the desktop at once. A package build leaves this
# to the package's own triggers. In: QUOVARA_DATADIR (relative to the install prefix).

if(NOT "$ENV{DESTDIR}" STREQUAL "")
    return()
endif()
set(share "${CMAKE_INSTALL_PREFIX}/${QUOVARA_DATADIR}")
if(IS_ABSOLUTE "${QUOVARA_DATADIR}")
    set(share "${QUOVARA_DATADIR}")
endif()

function(quovara_refresh tool)
    find_program(QUOVARA_TOOL_${tool} ${tool})
    if(NOT QUOVARA_TOOL_${tool})
        message(STATUS "${tool} not found: the desktop learns of Quovara at the next login")
        return()
    endif()
    execute_process(COMMAND ${QUOVARA_TOOL_${tool}} ${ARGN} RESULT_VARIABLE rc)
    if(NOT rc EQUAL 0)
        message(STATUS "${tool} failed (${rc}): the desktop learns of Quovara at the next login")
    endif()
endfunction()

quovara_refresh(update-mime-database "${share}/mime")
quovara_refresh(update-desktop-database -q "${share}/applications")
if(EXISTS "${share}/icons/hicolor/index.theme")
    quovara_refresh(gtk-update-icon-cache -q -t -f "${share}/icons/hicolor")
endif()
