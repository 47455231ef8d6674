#ifndef SETTINGSDIALOG_H
#define SETTINGSDIALOG_H

// The settings of the desk, so that nobody has to open an editor: one page per subject, kept in the
// configuration file when OK is pressed; operators are kept one by one.
// May touch: the watch list's configuration, the limits of hashes, Qt Widgets.

#include "fleet/watchlist.h"
#include "private/passwordhash.h"

#include <QDialog>

class DialogMessage;
class QTabWidget;
class SettingsForm;

class SettingsDialog : public QDialog
{
    Q_OBJECT

public:
    // The list must outlive the dialog. limits: cost of the hashes of new passwords.
    explicit SettingsDialog(WatchList& list, QWidget* parent = nullptr,
                            const HashLimits& limits = HashLimits::standard());

    void accept() override;

private:
    void addPages(const HashLimits& limits);
    QString save();
    DeskSettings shown() const; // as the fields say now

    WatchList& m_list;
    QTabWidget* m_pages;
    QVector<SettingsForm*> m_forms;
    DialogMessage* m_message;
};

#endif // SETTINGSDIALOG_H
