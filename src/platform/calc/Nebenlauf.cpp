#include "platform/calc/Nebenlauf.h"

#include <chrono>
#include <future>
#include <utility>

struct Nebenlauf::Inneres {
    std::future<void> ende;
};

Nebenlauf::Nebenlauf(std::function<void()> arbeit)
    : m_inneres(new Inneres{std::async(std::launch::async, std::move(arbeit))})
{}

Nebenlauf::~Nebenlauf() = default; // the future of an asynchronous call waits

bool Nebenlauf::endetIn(int millisekunden)
{
    return m_inneres->ende.wait_for(std::chrono::milliseconds(millisekunden)) == std::future_status::ready;
}
