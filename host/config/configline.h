#ifndef CONFIGLINE_H
#define CONFIGLINE_H

// The syntax of one line of the configuration file.
// May touch: Qt Core.
//
//  # comment                     also ; at the start of a line
//  [type]  [type "name"]         a comment may follow
//  key = value                   ends at a # that follows a blank
//  key = "quoted \"value\" # 1"  escapes: \" \\ \n \t \uXXXX
//
// Types and keys are ASCII letters, digits, '.', '-' and '_', compared in lower case. Text is
// UTF-8.

#include <QByteArray>
#include <QString>

struct ConfigLine {
    enum class Kind { Blank, Comment, Section, Entry, Faulty, FaultySection };

    Kind kind = Kind::Blank;
    QString type; // Section, lower case
    QString name; // Section; empty: without a name
    QString key;  // Entry, lower case
    QString value;
    // Bytes that an edit replaces: what stands between the brackets, or the value with its quotes.
    int begin = 0;
    int end = 0;
    QString fault; // Faulty and FaultySection: the reason

    // Longer lines are faulty: nothing that is set here comes near it.
    static constexpr int kMaxBytes = 8192;
};

// `bytes` without the line end.
ConfigLine parseConfigLine(const QByteArray& bytes);

// The text as a value, quoted only where it has to be. Any text comes back unchanged and never
// breaks out of its line.
QByteArray configValue(const QString& text);

// What stands between the brackets of a section.
QByteArray configHeader(const QString& type, const QString& name);

#endif // CONFIGLINE_H
