#pragma once

#include <QApplication>
#include <QTemporaryDir>

#include <memory>

/// The application on Qt's offscreen platform, with a screen that has room for every window.
class QtAnwendung {
public:
    QtAnwendung();

private:
    QTemporaryDir m_ordner;
    int m_argc = 1;
    char m_name[9] = "szenario";
    char* m_argv[2] = {m_name, nullptr};
    std::unique_ptr<QApplication> m_anwendung;
};
