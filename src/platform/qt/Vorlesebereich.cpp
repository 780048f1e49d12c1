#include "platform/qt/Vorlesebereich.h"

#include <QAbstractScrollArea>
#include <QScrollBar>

QWidgetList Vorlesebereich::kinder() const
{
    const auto* bereich = dynamic_cast<QAbstractScrollArea*>(widget());
    if (bereich == nullptr) {
        return {}; // it is being taken down
    }
    auto* rollendes = bereich->viewport();
    QWidgetList leisten{bereich->horizontalScrollBar()->parentWidget(), bereich->verticalScrollBar()->parentWidget()};
    QWidgetList alle;
    for (auto* objekt : bereich->children()) {
        auto* kind = objekt->isWidgetType() ? static_cast<QWidget*>(objekt) : nullptr;
        if (kind != nullptr && kind != rollendes && !leisten.contains(kind) && !kind->isWindow()) {
            alle << kind;
        }
    }
    alle << rollendes;
    for (auto* leiste : leisten) {
        if (leiste != nullptr && leiste->isVisible()) {
            alle << leiste;
        }
    }
    return alle;
}
