#pragma once

#include "oberflaeche/Schirm.h"

#include <QApplication>
#include <QTemporaryDir>

#include <memory>

/// The application on Qt's offscreen platform.
class QtAnwendung {
public:
    explicit QtAnwendung(const Schirm& schirm);

private:
    QTemporaryDir m_ordner;
    int m_argc = 1;
    char m_name[9] = "szenario";
    char* m_argv[2] = {m_name, nullptr};
    std::unique_ptr<QApplication> m_anwendung;
};
