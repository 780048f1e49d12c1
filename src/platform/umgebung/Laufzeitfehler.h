#pragma once

#include <stdexcept>
#include <string>

/// The one fatal failure of the program: a conversion or a file operation failed. It is thrown where that
/// happens and caught at one place (Ablauf), which shows the message and ends the process, so that nothing
/// is written any more.
///
/// The text (code page) says in German what failed, on which file and line, and why.
class Laufzeitfehler : public std::runtime_error {
public:
    explicit Laufzeitfehler(const std::string& text) : std::runtime_error(text) {}

    std::string text() const { return what(); }
};
