#pragma once

#include "oberflaeche/Oberflaeche.h"

#include <functional>
#include <string>
#include <vector>

/// A walk through the program, written as a scenario: a line `# bild NAME` is a stop, LANGERNAME in it is a name of
/// `namenslänge` letters.
class Rundgang {
public:
    Rundgang(const std::string& pfad, int namenslänge);
    /// A walk that is no file.
    static Rundgang ausText(std::string text);

    /// Walks; calls `halt` at each stop. Returns the failure, empty for none.
    std::string gehe(Oberfläche& oberfläche, const std::function<void(const std::string& name)>& halt) const;

private:
    explicit Rundgang(std::string text);
    void findeHalte();

    struct Halt {
        std::size_t zeile = 0;
        std::string name;
    };

    std::string m_pfad;
    std::string m_text;
    std::vector<Halt> m_halte;
};
