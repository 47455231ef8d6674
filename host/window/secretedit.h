#ifndef SECRETEDIT_H
#define SECRETEDIT_H

// A field for a password or key: never shows one, and keeps the one there is until another is
// typed.
// May touch: Qt Widgets.

#include <QLineEdit>

class SecretEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit SecretEdit(QWidget* parent = nullptr);

    void setKept(const QString& secret);
    // What was typed, else what is kept.
    QString secret() const { return text().isEmpty() ? m_kept : text(); }

private:
    QString m_kept;
};

#endif // SECRETEDIT_H
