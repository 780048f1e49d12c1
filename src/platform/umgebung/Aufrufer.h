#pragma once

#include <string_view>

/// Says something (UTF-8) to whoever has called the program without wanting a window: on the terminal. A program of
/// windows may have none on Windows; then a box says it.
void sageDemAufrufer(std::string_view text);
/// The same for what went wrong.
void meldeDemAufrufer(std::string_view text);
