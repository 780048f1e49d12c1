#include "platform/dateien/Pfadkunde.h"

#include <array>
#include <ctime>

std::string alsZeittext(std::int64_t sekunden)
{
    const auto zeit = static_cast<std::time_t>(sekunden);
    std::array<char, 32> text{};
    const auto länge = std::strftime(text.data(), text.size(), "%Y-%m-%d %H.%M.%S", std::localtime(&zeit));
    return {text.data(), länge};
}
