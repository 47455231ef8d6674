#ifndef WINDOWSTATE_H
#define WINDOWSTATE_H

// How the window was left: place, sizes, what was open. It belongs to the desk, not to the
// operator's configuration, and losing it costs nothing.
// May touch: Qt Core and one file in the user's state folder.

#include <QByteArray>
#include <QString>

struct WindowState {
    QByteArray geometry; // empty: as large as suits the screen
    QByteArray docks;
    QByteArray splitter;
    QString device; // name of the one on show; empty: all of them
    int page = 0;   // of DevicePage::pages()
    bool showsList = true;
    bool showsEvents = true; // as soon as there is one
    bool worstFirst = false;

    // upsdesk/window.ini in $XDG_STATE_HOME, else in ~/.local/state.
    static QString defaultPath();
    // What cannot be read has its default.
    static WindowState load(const QString& path = defaultPath());
    void save(const QString& path = defaultPath()) const;
};

#endif // WINDOWSTATE_H
