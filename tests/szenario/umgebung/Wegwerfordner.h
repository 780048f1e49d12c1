#pragma once

#include <filesystem>

/// A fresh, empty folder of its own among the system's temporary files, removed at the end.
class Wegwerfordner {
public:
    Wegwerfordner();
    Wegwerfordner(const Wegwerfordner&) = delete;
    Wegwerfordner& operator=(const Wegwerfordner&) = delete;
    ~Wegwerfordner();

    const std::filesystem::path& pfad() const { return m_pfad; }

private:
    std::filesystem::path m_pfad;
};
