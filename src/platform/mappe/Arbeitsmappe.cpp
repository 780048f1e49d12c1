#include "platform/mappe/Arbeitsmappe.h"

const Blatt* Arbeitsmappe::finde(std::string_view name) const
{
    for (const auto& blatt : m_blätter) {
        if (blatt->name() == name) {
            return blatt.get();
        }
    }
    return nullptr;
}

std::vector<std::string> Arbeitsmappe::blattnamen() const
{
    std::vector<std::string> namen;
    for (const auto& blatt : m_blätter) {
        namen.push_back(blatt->name());
    }
    return namen;
}

Blatt& Arbeitsmappe::fügeBlattEinVor(std::size_t nummer, std::string_view name)
{
    const auto ort = m_blätter.begin() + static_cast<std::ptrdiff_t>(nummer - 1);
    return **m_blätter.insert(ort, std::make_unique<Blatt>(name));
}

void Arbeitsmappe::löscheBlatt(std::size_t nummer)
{
    m_blätter.erase(m_blätter.begin() + static_cast<std::ptrdiff_t>(nummer - 1));
}
