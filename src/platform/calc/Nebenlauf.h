#pragma once

#include <functional>
#include <memory>

/// One piece of work in a thread of its own, so that the window can be painted meanwhile. The work must not throw
/// and must touch nothing that anybody else touches until it has ended.
class Nebenlauf {
public:
    explicit Nebenlauf(std::function<void()> arbeit);
    Nebenlauf(const Nebenlauf&) = delete;
    Nebenlauf& operator=(const Nebenlauf&) = delete;
    /// Waits for the end.
    ~Nebenlauf();

    /// Waits for the end, but no longer than the time; whether it has ended.
    bool endetIn(int millisekunden);

private:
    struct Inneres;
    std::unique_ptr<Inneres> m_inneres;
};
