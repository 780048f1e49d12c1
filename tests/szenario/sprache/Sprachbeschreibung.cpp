#include "sprache/Sprachbeschreibung.h"

#include "sprache/Anweisungsformen.h"
#include "sprache/Tastenfolge.h"
#include "sprache/Unicode.h"

namespace {

/// A bar ends a cell of the table.
std::string ohneStrich(std::string_view text)
{
    std::string zelle;
    for (const char zeichen : text) {
        zelle += zeichen == '|' ? "\\|" : std::string(1, zeichen);
    }
    return zelle;
}

std::string aufruf(const Anweisungsform& form)
{
    std::string text(form.wort);
    for (const auto& argument : form.pflicht) {
        text.append(" ").append(argument.name);
    }
    for (const auto& argument : form.möglich) {
        text.append(" [").append(argument.name).append("]");
    }
    for (const auto& argument : form.weitere) {
        text.append(" [").append(argument.name).append(" …]");
    }
    for (const auto& option : form.optionen) {
        std::string werte;
        for (const auto wert : option.werte) {
            werte.append(werte.empty() ? "" : "|").append(wert);
        }
        text.append(" [").append(option.name).append("=").append(werte.empty() ? "TEXT" : werte).append("]");
    }
    return text;
}

std::string zeile(const Anweisungsform& form)
{
    std::string text = "| `" + ohneStrich(aufruf(form)) + "`";
    if (form.mitZeilen) {
        text += " + lines";
    }
    return text.append(" | ").append(ohneStrich(form.bedeutung)).append(" |\n");
}

std::string tabelle(std::string_view titel, std::initializer_list<Gattung> gattungen)
{
    std::string text = "### " + std::string(titel) + "\n\n| Statement | Meaning |\n|---|---|\n";
    for (const auto& form : anweisungsformen()) {
        for (const auto gattung : gattungen) {
            text += form.gattung == gattung ? zeile(form) : "";
        }
    }
    return text + "\n";
}

/// The words with that property, as "`a`, `b`".
std::string aufzählung(bool Anweisungsform::*eigenschaft)
{
    std::string text;
    for (const auto& form : anweisungsformen()) {
        if (form.*eigenschaft) {
            text.append(text.empty() ? "`" : ", `").append(form.wort).append("`");
        }
    }
    return text;
}

std::string tasten()
{
    std::string text;
    for (const auto name : sondertastennamen()) {
        text.append(text.empty() ? "`{" : ", `{").append(alsUtf8(name)).append("}`");
    }
    return text;
}

} // namespace

std::string beschreibeSprache()
{
    return tabelle("Set-up", {Gattung::Aufbau}) + tabelle("Actions", {Gattung::Handlung, Gattung::Bereitstellung}) +
           tabelle("Expectations", {Gattung::Erwartung}) + "Keys in TASTEN: " + tasten() +
           ", each also behind `Umschalt+`, `Strg+`, `Alt+`, as any character is (`{Strg+Ab}`, `{Alt+5}`).\n\nBehind "
           "`unmöglich`, and then right exactly when a person could not do it: " +
           aufzählung(&Anweisungsform::auchUnmöglich) +
           ".\n\n`\\r` and `\\n` are the single characters, not any line break, in: " +
           aufzählung(&Anweisungsform::einzelzeichen) + ".\n";
}
