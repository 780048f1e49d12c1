#include "umgebung/Sperrzugriff.h"

#include "platform/text/Text.h"

namespace {

class FlüchtigeDatei : public OffeneDatei {
public:
    explicit FlüchtigeDatei(std::unique_ptr<OffeneDatei> datei) : m_datei(std::move(datei)) {}

    std::size_t schreibe(std::string_view bytes) override { return m_datei->schreibe(bytes); }
    std::uint64_t länge() override { return m_datei->länge(); }
    void schneideAb(std::uint64_t länge) override { m_datei->schneideAb(länge); }
    void sichereAufPlatte() override {}
    void schließe() override { m_datei->schließe(); }

private:
    std::unique_ptr<OffeneDatei> m_datei;
};

} // namespace

void Sperrzugriff::prüfe(const std::filesystem::path& pfad)
{
    if (m_gesperrt.erase(pfad.lexically_normal()) > 0) {
        throw Dateifehler(std::string("Zugriff verweigert"_t));
    }
}

std::unique_ptr<OffeneDatei> Sperrzugriff::öffne(const std::filesystem::path& pfad, Öffnung wie)
{
    prüfe(pfad);
    return std::make_unique<FlüchtigeDatei>(m_system->öffne(pfad, wie));
}

void Sperrzugriff::benenneUm(const std::filesystem::path& von, const std::filesystem::path& nach)
{
    prüfe(nach);
    m_system->benenneUm(von, nach);
}
