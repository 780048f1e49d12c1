#pragma once

#include <filesystem>

/// A fresh, empty folder of its own among the system's temporary files, removed at the end.
class Szenarioordner {
public:
    Szenarioordner();
    Szenarioordner(const Szenarioordner&) = delete;
    Szenarioordner& operator=(const Szenarioordner&) = delete;
    ~Szenarioordner();

    const std::filesystem::path& pfad() const { return m_pfad; }

private:
    std::filesystem::path m_pfad;
};
