#include "platform/qt/Handbuch.h"

#include "platform/qt/Handbuchstellen.h"
#include "platform/qt/Stil.h"
#include "platform/qt/Umschrift.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QKeyEvent>
#include <QKeySequence>
#include <QRegularExpression>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextFrame>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <utility>

namespace {

constexpr double fensterbreite = 44;
constexpr double fensterhöhe = 42;
constexpr double bildbreite = 38;

} // namespace

/// The text of the handbook with its pictures, which are fitted to the width of the window.
class Handbuchblatt : public QTextBrowser {
public:
    Handbuchblatt(QString ordner, QWidget* eltern) : QTextBrowser(eltern), m_ordner(std::move(ordner))
    {
        setOpenLinks(false);
        setTextInteractionFlags(Qt::TextBrowserInteraction | Qt::TextSelectableByKeyboard);
        setAccessibleName(QStringLiteral("Handbuch"));
        document()->setDefaultFont(schrift(Schriftrolle::Grund));
        document()->setDocumentMargin(em(1));
        // angle brackets stand for themselves, in messages and captions
        const auto form =
            QTextDocument::MarkdownFeatures(QTextDocument::MarkdownDialectGitHub) | QTextDocument::MarkdownNoHTML;
        document()->setMarkdown(lies(), form);
        rahmeTabellen();
        connect(this, &QTextBrowser::anchorClicked, this, [this](const QUrl& ziel) { gehe(ziel.fragment()); });
    }

    void gehe(const QString& marke)
    {
        QTextBlock block = document()->begin();
        while (block.isValid() && (block.blockFormat().headingLevel() == 0 || markeVon(block.text()) != marke)) {
            block = block.next();
        }
        if (!block.isValid()) {
            block = document()->begin();
        }
        setTextCursor(QTextCursor(block));
        const QRectF ort = document()->documentLayout()->blockBoundingRect(block);
        verticalScrollBar()->setValue(static_cast<int>(ort.top()) - em(0.5));
    }

protected:
    QVariant loadResource(int art, const QUrl& name) override
    {
        if (art != QTextDocument::ImageResource) {
            return QTextBrowser::loadResource(art, name);
        }
        QImage bild(m_ordner + QLatin1Char('/') + name.toString());
        const double schärfe = devicePixelRatioF();
        const int breite = static_cast<int>(em(bildbreite) * schärfe);
        if (bild.width() > breite) {
            bild = bild.scaledToWidth(breite, Qt::SmoothTransformation);
        }
        bild.setDevicePixelRatio(schärfe);
        return bild;
    }

private:
    QString lies() const
    {
        QFile datei(m_ordner + QStringLiteral("/handbuch.md"));
        if (!datei.open(QIODevice::ReadOnly)) {
            return QStringLiteral("# Handbuch\n\nDas Handbuch fehlt: %1")
                .arg(QDir::toNativeSeparators(datei.fileName()));
        }
        return QString::fromUtf8(datei.readAll());
    }

    void rahmeTabellen()
    {
        for (auto* rahmen : document()->rootFrame()->childFrames()) {
            auto form = rahmen->frameFormat().toTableFormat();
            if (form.isValid()) {
                form.setBorderCollapse(true);
                form.setBorder(1);
                form.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
                form.setBorderBrush(farben().rand);
                form.setCellPadding(em(0.25));
                rahmen->setFrameFormat(form);
            }
        }
    }

    QString m_ordner;
};

QString markeVon(const QString& überschrift)
{
    static const QRegularExpression zeichen(QStringLiteral("[^\\w -]"), QRegularExpression::UseUnicodePropertiesOption);
    return überschrift.trimmed().toLower().remove(zeichen).replace(QChar(' '), QChar('-'));
}

QString handbuchordner()
{
    const QDir programm(QCoreApplication::applicationDirPath());
    const std::array plätze{QStringLiteral("Handbuch"), QStringLiteral("../share/tolvek7/Handbuch"),
                            QStringLiteral("../share/doc/tolvek7/Handbuch")};
    for (const QString& platz : plätze) {
        if (programm.exists(platz)) {
            return QDir::cleanPath(programm.filePath(platz));
        }
    }
    return programm.filePath(plätze.front());
}

Handbuch::Handbuch(std::function<std::string()> bildschirm, QString ordner)
    : m_bildschirm(std::move(bildschirm)), m_ordner(std::move(ordner))
{
    setWindowTitle(QStringLiteral("Tolvek7 - Handbuch"));
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, [this] { close(); });
    qApp->installEventFilter(this);
}

/// The text is read and set when it is asked for, which takes its time.
void Handbuch::baue()
{
    m_blatt = new Handbuchblatt(m_ordner, this);
    ohneRand(new QVBoxLayout(this))->addWidget(m_blatt);
    const QRect platz = QGuiApplication::primaryScreen()->availableGeometry();
    resize(std::min(em(fensterbreite), platz.width()), std::min(em(fensterhöhe), platz.height() - em(3)));
    move(platz.right() - width() - em(0.5), platz.top() + em(1)); // leaves the left edge of the frame in sight
}

void Handbuch::öffneBei(const QString& marke)
{
    if (m_blatt == nullptr) {
        baue();
    }
    if (auto* vorher = QApplication::activeWindow(); vorher != this) {
        m_vorher = vorher;
    }
    showNormal();
    raise();
    activateWindow();
    m_blatt->setFocus();
    m_blatt->gehe(marke);
}

void Handbuch::closeEvent(QCloseEvent* ereignis)
{
    ereignis->accept();
    if (isActiveWindow() && m_vorher != nullptr && m_vorher->isVisible()) {
        m_vorher->activateWindow(); // the keyboard goes on where it was
    }
}

bool Handbuch::eventFilter(QObject* objekt, QEvent* ereignis)
{
    if (ereignis->type() != QEvent::KeyPress || !objekt->isWidgetType()) {
        return false;
    }
    const auto& taste = *static_cast<QKeyEvent*>(ereignis);
    const bool gesperrt = QApplication::activeModalWidget() != nullptr || QApplication::activePopupWidget() != nullptr;
    if (QKeySequence(taste.keyCombination()) != QKeySequence(alsQString(handbuchtaste)) || gesperrt) {
        return false;
    }
    const std::string name = m_bildschirm();
    const auto ort = std::ranges::find(handbuchstellen, std::string_view(name), &Handbuchstelle::bildschirm);
    öffneBei(ort == handbuchstellen.end() ? QString() : alsQString(ort->marke));
    return true;
}
