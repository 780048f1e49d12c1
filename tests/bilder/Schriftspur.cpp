#include "Schriftspur.h"

#include <QFontMetricsF>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QWidget>

#include <algorithm>

namespace {

/// A paint engine that drops everything but the texts.
class Schreibwerk : public QPaintEngine {
public:
    Schreibwerk() : QPaintEngine(AllFeatures) {}

    bool begin(QPaintDevice* /*gerät*/) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState& /*stand*/) override {}
    Type type() const override { return User; }
    void drawPixmap(const QRectF& /*ziel*/, const QPixmap& /*bild*/, const QRectF& /*quelle*/) override {}
    void drawImage(const QRectF& /*ziel*/, const QImage& /*bild*/, const QRectF& /*quelle*/,
                   Qt::ImageConversionFlags /*art*/) override
    {}
    void drawPath(const QPainterPath& /*pfad*/) override {}
    void drawRects(const QRectF* /*rechtecke*/, int /*anzahl*/) override {}
    void drawPolygon(const QPointF* /*punkte*/, int /*anzahl*/, PolygonDrawMode /*art*/) override {}

    void drawTextItem(const QPointF& ort, const QTextItem& stück) override
    {
        const QString text = stück.text().trimmed();
        if (text.isEmpty()) {
            return;
        }
        const auto vorne = stück.text().left(stück.text().indexOf(text));
        const QFontMetricsF maß(stück.font(), paintDevice());
        const QRectF tinte = maß.tightBoundingRect(text).translated(ort + QPointF(maß.horizontalAdvance(vorne), 0));
        if (painter()->hasClipping() && !painter()->clipRegion().intersects(tinte.toAlignedRect())) {
            return; // a selection paints its text twice, and shows one part of each
        }
        const auto& welt = painter()->transform();
        züge.push_back({text, welt.mapRect(tinte),
                        painter()->hasClipping() ? welt.mapRect(painter()->clipBoundingRect()) : QRectF(),
                        painter()->pen().color()});
    }

    std::vector<Schriftzug> züge;
};

class Schreibgerät : public QPaintDevice {
public:
    explicit Schreibgerät(const QWidget& vorbild) : m_vorbild(vorbild) {}

    QPaintEngine* paintEngine() const override { return &werk; }

    mutable Schreibwerk werk;

protected:
    int metric(PaintDeviceMetric maß) const override
    {
        switch (maß) {
        case PdmWidth:
            return m_vorbild.width();
        case PdmHeight:
            return m_vorbild.height();
        case PdmDpiX:
        case PdmPhysicalDpiX:
            return m_vorbild.logicalDpiX();
        case PdmDpiY:
        case PdmPhysicalDpiY:
            return m_vorbild.logicalDpiY();
        case PdmDevicePixelRatioScaled:
            return static_cast<int>(devicePixelRatioFScale());
        case PdmDevicePixelRatio:
            return 1;
        case PdmDepth:
            return 32;
        default:
            return QPaintDevice::metric(maß);
        }
    }

private:
    const QWidget& m_vorbild;
};

} // namespace

std::vector<Schriftzug> schriftVon(QWidget& widget)
{
    Schreibgerät gerät(widget);
    widget.render(&gerät, QPoint(), QRegion(), QWidget::RenderFlags());
    return gerät.werk.züge;
}
