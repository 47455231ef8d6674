#include "window/windowstate.h"

#include <QDir>
#include <QSettings>

namespace {

// One row per value: load and save go through the same table.
template <typename T>
struct Row {
    const char* key;
    T WindowState::*field;
};

constexpr Row<QByteArray> kBytes[] = {
    {"geometry", &WindowState::geometry},
    {"docks", &WindowState::docks},
    {"splitter", &WindowState::splitter},
};
constexpr Row<QString> kTexts[] = {{"device", &WindowState::device}};
constexpr Row<int> kNumbers[] = {{"page", &WindowState::page}};
constexpr Row<bool> kSwitches[] = {
    {"list", &WindowState::showsList},
    {"events", &WindowState::showsEvents},
    {"worst-first", &WindowState::worstFirst},
};

template <typename T, size_t N>
void read(const QSettings& file, const Row<T> (&rows)[N], WindowState& state)
{
    for (const Row<T>& row : rows)
        state.*row.field =
            file.value(QLatin1String(row.key), QVariant(state.*row.field)).template value<T>();
}

template <typename T, size_t N>
void write(QSettings& file, const Row<T> (&rows)[N], const WindowState& state)
{
    for (const Row<T>& row : rows)
        file.setValue(QLatin1String(row.key), state.*row.field);
}

} // namespace

QString WindowState::defaultPath()
{
    const QString folder = qEnvironmentVariable("XDG_STATE_HOME");
    return (QDir::isAbsolutePath(folder) ? folder
                                         : QDir::homePath() + QStringLiteral("/.local/state")) +
           QStringLiteral("/upsdesk/window.ini");
}

WindowState WindowState::load(const QString& path)
{
    const QSettings file(path, QSettings::IniFormat);
    WindowState state;
    read(file, kBytes, state);
    read(file, kTexts, state);
    read(file, kNumbers, state);
    read(file, kSwitches, state);
    return state;
}

void WindowState::save(const QString& path) const
{
    QSettings file(path, QSettings::IniFormat);
    write(file, kBytes, *this);
    write(file, kTexts, *this);
    write(file, kNumbers, *this);
    write(file, kSwitches, *this);
}
