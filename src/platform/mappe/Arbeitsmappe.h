#pragma once

#include "platform/mappe/Blatt.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

/// A workbook: sheets in order, and the tables that their cells refer to. A new one has one empty sheet, as
/// a spreadsheet program starts it. Sheets keep their address when others come or go, and when the workbook
/// is moved.
class Arbeitsmappe {
public:
    Arbeitsmappe() { fügeBlattEinVor(1, "Tabelle1"); }

    std::size_t blattanzahl() const { return m_blätter.size(); }
    /// The sheet with the number, from 1. Throws std::out_of_range.
    Blatt& blatt(std::size_t nummer) { return *m_blätter.at(nummer - 1); }
    const Blatt& blatt(std::size_t nummer) const { return *m_blätter.at(nummer - 1); }
    /// The sheet with the name, nullptr for none.
    const Blatt* finde(std::string_view name) const;
    std::vector<std::string> blattnamen() const;

    /// A new sheet in front of the one with the number (from 1).
    Blatt& fügeBlattEinVor(std::size_t nummer, std::string_view name);
    void löscheBlatt(std::size_t nummer);

    /// Keeps the content alive as long as the workbook, since cells refer to its bytes.
    void halte(std::shared_ptr<const void> inhalt) { m_gehalten.push_back(std::move(inhalt)); }

private:
    std::vector<std::unique_ptr<Blatt>> m_blätter;
    std::vector<std::shared_ptr<const void>> m_gehalten;
};
