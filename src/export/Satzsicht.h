#pragma once

#include "platform/text/Text.h"

#include <string_view>
#include <vector>

/// A line cut into its fields once, for the passes that need nearly all of them: asking `getFeld` two hundred
/// times would walk the line two hundred times. The fields are views into the line, which has to outlive them.
class Satzsicht {
public:
    Satzsicht() = default;
    explicit Satzsicht(std::string_view zeile, char trennzeichen = trenner) { lies(zeile, trennzeichen); }

    /// Takes another line; a line of more than 32,767 characters is a Laufzeitfehler, as it is for `getFeld`.
    void lies(std::string_view zeile, char trennzeichen = trenner);

    /// Field `nummer` from 1; empty beyond the last one and below 1.
    std::string_view feld(int nummer) const
    {
        const auto ort = static_cast<std::size_t>(nummer) - 1;
        return ort < m_felder.size() ? m_felder[ort] : std::string_view{};
    }

private:
    std::vector<std::string_view> m_felder;
};
