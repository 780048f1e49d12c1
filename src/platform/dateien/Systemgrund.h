#pragma once

#include <string>
#include <system_error>

/// The system's reason for a failed file operation, in German (code page): what a person can do something
/// about has a text of its own, the rest its number.
std::string systemgrund(const std::error_code& fehler);

/// Fails with the reason why the last call to the system failed (errno).
[[noreturn]] void scheitereAmSystem();
