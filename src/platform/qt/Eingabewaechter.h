#pragma once

#include "platform/elemente/Taste.h"

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <functional>
#include <optional>

class Ansicht;
class QKeyEvent;
class QMouseEvent;

/// The key of the event, or nothing for keys that the program does not know (modifiers alone, media keys).
std::optional<Taste> alsTaste(const QKeyEvent& ereignis);

/// Sees every press of the mouse and every key before the widgets do.
///
/// A press on an element asks the element that has the focus to let go; where it does not, the whole press
/// up to its release is swallowed. So is the second press of a double click whose first press has hidden what
/// it met: OK stands in the same place everywhere, and a page that is left by a double click is not to save the
/// episode behind it as well. Keys go to the element, and what it has no use for to its screen, so that
/// the rules for keys are the logic's; only editing texts and open lists are left to the toolkit. Combinations with
/// Ctrl, Alt and Meta that mean nothing to the program end here: the toolkit has meanings for some that would move a
/// highlight or change an answer without the program hearing of it.
class Eingabewächter : public QObject {
public:
    /// `ansichtVon` tells the live tree that the widget belongs to (for a window: the tree that it shows).
    explicit Eingabewächter(std::function<Ansicht*(const QWidget*)> ansichtVon);

    bool eventFilter(QObject* objekt, QEvent* ereignis) override;

private:
    bool beiMaus(QWidget& widget, const QMouseEvent& ereignis);
    bool beiTaste(QWidget& widget, const QKeyEvent& ereignis);

    std::function<Ansicht*(const QWidget*)> m_ansichtVon;
    QPointer<QWidget> m_gedrücktes; ///< what the last press met, that of a double click aside
    bool m_verschluckt = false;     ///< a press was refused; its release is still to come
};
