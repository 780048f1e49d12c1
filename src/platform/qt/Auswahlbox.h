#pragma once

#include <QComboBox>

class Ansicht;
class Auswahlfeld;

/// The combo box: reads list and text from its element and hands every key to it.
class Auswahlbox : public QComboBox {
public:
    Auswahlbox(Auswahlfeld& element, Ansicht& ansicht);

    /// What the closed box shows (whole, even where it is elided), in the list or not.
    QString gezeigterText() const;
};
