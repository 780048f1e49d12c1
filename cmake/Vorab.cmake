# The headers of others, compiled once and not once a file: half of all building time went into reading them. None of our
# own is among them, so that a change of ours compiles what includes it and nothing else. What they hide, a house rule sees
# (tests/architektur/standard.py).
set(TOLVEK_VORAB_LOGIK <algorithm> <array> <cstdint> <filesystem> <functional> <map> <memory> <optional> <span> <string>
                       <string_view> <unordered_map> <utility> <vector>)
set(TOLVEK_VORAB_QT <QAbstractButton> <QAccessible> <QAccessibleWidget> <QApplication> <QComboBox> <QHeaderView> <QKeyEvent>
                    <QLabel> <QLineEdit> <QMainWindow> <QMouseEvent> <QPainter> <QPlainTextEdit> <QScrollArea> <QScrollBar> <QStyle>
                    <QTimer> <QTreeView>)
set(TOLVEK_VORAB_GTEST <gtest/gtest.h>)

# tolvek_vorab(TARGET [QT] [GTEST] [WIE other]): the standard library's headers, and those of the toolkit or of the tests;
# or what another target with the same options has compiled already.
function(tolvek_vorab ziel)
  cmake_parse_arguments(teil "QT;GTEST" "WIE" "" ${ARGN})
  if(teil_WIE)
    target_precompile_headers(${ziel} REUSE_FROM ${teil_WIE})
    return()
  endif()
  set(koepfe ${TOLVEK_VORAB_LOGIK})
  if(teil_QT AND TOLVEK_QT)
    list(APPEND koepfe ${TOLVEK_VORAB_QT})
  endif()
  if(teil_GTEST)
    list(APPEND koepfe ${TOLVEK_VORAB_GTEST})
  endif()
  target_precompile_headers(${ziel} PRIVATE ${koepfe})
endfunction()
