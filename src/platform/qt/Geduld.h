#pragma once

// The busy cursor of an action that lasts. A window at work hears no clock; so the clock is looked at whenever the
// action comes by: at every change of an element, every access to the files and every painting.

namespace geduld {

/// The action of a person, from here to the end of the block; actions within actions are one.
class Handlung {
public:
    Handlung();
    Handlung(const Handlung&) = delete;
    Handlung& operator=(const Handlung&) = delete;
    ~Handlung();
};

/// Meanwhile it is the program that waits (for the answer to a box). Afterwards the action begins anew.
class Pause {
public:
    Pause();
    Pause(const Pause&) = delete;
    Pause& operator=(const Pause&) = delete;
    ~Pause();

private:
    int m_tiefe;
};

/// Shows the busy cursor when the action has lasted 200 ms.
void prüfe();

} // namespace geduld
