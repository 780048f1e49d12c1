#include "umgebung/Sperrzugriff.h"

#include "platform/text/Text.h"

namespace {

class FlüchtigeDatei : public OffeneDatei {
public:
    explicit FlüchtigeDatei(std::unique_ptr<OffeneDatei> datei) : m_datei(std::move(datei)) {}

    std::size_t schreibe(std::string_view bytes) override { return m_datei->schreibe(bytes); }
    void sichereAufPlatte() override {}
    void schließe() override { m_datei->schließe(); }

private:
    std::unique_ptr<OffeneDatei> m_datei;
};

} // namespace

/// A new version beside the file counts as the file.
void Sperrzugriff::prüfe(std::filesystem::path pfad)
{
    if (pfad.extension() == ".neu") {
        pfad.replace_extension();
    }
    if (m_gesperrt.erase(pfad.lexically_normal()) > 0) {
        throw Dateifehler(std::string("Zugriff verweigert"_t));
    }
}

std::unique_ptr<OffeneDatei> Sperrzugriff::öffne(const std::filesystem::path& pfad, Öffnung wie)
{
    prüfe(pfad);
    return std::make_unique<FlüchtigeDatei>(Zugriffsweiche::öffne(pfad, wie));
}

void Sperrzugriff::benenneUm(const std::filesystem::path& von, const std::filesystem::path& nach)
{
    prüfe(nach);
    Zugriffsweiche::benenneUm(von, nach);
}
