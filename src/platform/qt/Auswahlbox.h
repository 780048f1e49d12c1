#pragma once

#include <QComboBox>

class Ansicht;
class Auswahlfeld;
class QStringListModel;

/// The combo box: reads list and text from its element, hands every key to it, and never follows the wheel.
class Auswahlbox : public QComboBox {
public:
    Auswahlbox(Auswahlfeld& element, Ansicht& ansicht, QWidget* eltern);

    /// What the closed box shows (whole, even where it is elided), in the list or not.
    QString gezeigterText() const;
    /// Before a key goes to the element of a typeable box: the element's cursor takes the place of the
    /// box's, and a selection makes way for what is typed.
    void gleicheSchreibmarkeAb(bool auswahlWeicht);

    void showPopup() override;
    /// Of the open list: the keys that open it close it too.
    bool eventFilter(QObject* objekt, QEvent* ereignis) override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void initStyleOption(QStyleOptionComboBox* option) const override;
    void wheelEvent(QWheelEvent* ereignis) override;
    void focusInEvent(QFocusEvent* ereignis) override;
    void keyPressEvent(QKeyEvent* ereignis) override;
    bool event(QEvent* ereignis) override;

private:
    void macheTippbar();
    void übernimm();
    void übernimmListe();
    void übernimmTippbar();
    void übernimmStelle();
    void gibEin(const QString& text);

    Auswahlfeld& m_element;
    Ansicht& m_ansicht;
    QStringListModel* m_liste;
    QString m_text;
    bool m_wirdGefüllt = false;
};
