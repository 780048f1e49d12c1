#pragma once

#include <QAccessible>
#include <QWidget>

/// What a screen reader meets whose children are the widgets that `kinder` names at this moment. A child that is gone
/// since it was counted is no child; the toolkit's own areas reach past the end of their list there and end the
/// program.
template <class Basis> class Vorlesekinder : public Basis {
public:
    using Basis::Basis;

    int childCount() const override { return static_cast<int>(kinder().size()); }
    QAccessibleInterface* child(int stelle) const override
    {
        return QAccessible::queryAccessibleInterface(kinder().value(stelle));
    }
    int indexOfChild(const QAccessibleInterface* kind) const override
    {
        return kind == nullptr ? -1 : static_cast<int>(kinder().indexOf(static_cast<QWidget*>(kind->object())));
    }

protected:
    virtual QWidgetList kinder() const = 0;
};
