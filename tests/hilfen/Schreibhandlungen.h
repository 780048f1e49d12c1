#pragma once

#include "app/moMain.h"

#include <cstddef>
#include <string_view>
#include <vector>

/// The actions that write tables, done as a person does them: through the elements of the screen in use. The fault
/// tests do them on a disk in memory and in real processes.

/// What a person does with the elements of a running program. What is out of reach is a failure of the test
/// (std::logic_error).
class Hand {
public:
    explicit Hand(Programm& programm) : m_programm(programm) {}

    void klicke(std::string_view name);
    void tippe(std::string_view name, std::string_view text);
    void tippeZahl(std::string_view name, std::string_view text);
    void wähle(std::string_view name, std::size_t eintrag);
    void klickeZeile(std::string_view name, std::size_t zeile);

private:
    template <class F> void tue(std::string_view name, F aktion);

    Programm& m_programm;
};

struct Schreibhandlung {
    std::string_view name; ///< ASCII
    /// Steps from the main menu up to the moment before the action; then the action itself. Boxes are to be answered
    /// with their confirming button.
    void (*bereiteVor)(Hand&);
    void (*handle)(Hand&);
};

/// The facility has at least two clients; the first one has an episode, and the older files of an import lie in
/// `alt` below the program folder.
const std::vector<Schreibhandlung>& schreibhandlungen();
