#include "umgebung/Sperrzugriff.h"

#include "platform/text/Text.h"

class FlüchtigeDatei : public OffeneDatei {
public:
    FlüchtigeDatei(std::unique_ptr<OffeneDatei> datei, Sperrzugriff& zugriff)
        : m_datei(std::move(datei)), m_zugriff(zugriff)
    {}

    std::size_t schreibe(std::string_view bytes) override
    {
        m_zugriff.zähle();
        return m_datei->schreibe(bytes);
    }
    void sichereAufPlatte() override {}
    void schließe() override { m_datei->schließe(); }

private:
    std::unique_ptr<OffeneDatei> m_datei;
    Sperrzugriff& m_zugriff;
};

void Sperrzugriff::zähle()
{
    if (!m_frist) {
        return;
    }
    if (*m_frist == 0) {
        throw Dateifehler("the process is dead");
    }
    --*m_frist;
}

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
    zähle();
    prüfe(pfad);
    return std::make_unique<FlüchtigeDatei>(Dateizugriff::öffne(pfad, wie), *this);
}

void Sperrzugriff::benenneUm(const std::filesystem::path& von, const std::filesystem::path& nach)
{
    zähle();
    prüfe(nach);
    Dateizugriff::benenneUm(von, nach);
}

void Sperrzugriff::lösche(const std::filesystem::path& pfad)
{
    zähle();
    Dateizugriff::lösche(pfad);
}

void Sperrzugriff::verknüpfe(const std::filesystem::path& von, const std::filesystem::path& nach)
{
    zähle();
    Dateizugriff::verknüpfe(von, nach);
}

void Sperrzugriff::legeOrdnerAn(const std::filesystem::path& pfad)
{
    zähle();
    Dateizugriff::legeOrdnerAn(pfad);
}

void Sperrzugriff::entferneOrdner(const std::filesystem::path& pfad)
{
    zähle();
    Dateizugriff::entferneOrdner(pfad);
}
