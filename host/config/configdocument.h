#ifndef CONFIGDOCUMENT_H
#define CONFIGDOCUMENT_H

// The configuration file as lines: reading, editing and saving without losing what people wrote.
// May touch: Qt Core, the file system. Knows sections and keys, not what they mean.
//
// Unedited, a document is written back byte for byte, line ends and byte order mark included. An
// edit touches only the lines of what it names; comments, blank lines and unknown keys stay. A
// comment that stands directly above a section belongs to it and goes where it goes, except at the
// top of the file, where it speaks of the file.
//
// Faults: a line that cannot be read is skipped, a section whose header cannot be read or that is
// there twice is skipped whole, and so is the second of two equal keys. The rest is used.

#include "config/configfault.h"
#include "config/configline.h"

#include <QHash>
#include <QStringList>

#include <optional>

struct ConfigSection {
    QString type; // lower case
    QString name; // as written; empty: a section without a name

    bool operator==(const ConfigSection& other) const
    {
        return type == other.type && name == other.name;
    }
};

class ConfigDocument
{
public:
    ConfigDocument();
    explicit ConfigDocument(const QByteArray& bytes);

    // A missing file is a document of `startText` without faults. A file that cannot be opened or
    // is longer than kMaxBytes is an empty document with a fault, which is never saved.
    static ConfigDocument load(const QString& path, const QByteArray& startText = {});
    static constexpr qint64 kMaxBytes = 4 * 1024 * 1024;

    QByteArray toBytes() const;
    QString path() const { return m_path; }
    // The path had no file when it was loaded.
    bool isNew() const { return !m_onDisk; }
    // In the order of the lines; at most kMaxFaults and one that says so.
    const ConfigFaults& faults() const { return m_faults; }
    static constexpr int kMaxFaults = 100;

    // Sections of one type, or all, in the order of the file; faulty ones left out.
    QVector<ConfigSection> sections(const QString& type = {}) const;
    bool contains(const ConfigSection& section) const;
    QStringList keys(const ConfigSection& section) const; // in the order of the file
    std::optional<QString> value(const ConfigSection& section, const QString& key) const;
    // From 1; 0: not there.
    int line(const ConfigSection& section) const;
    int line(const ConfigSection& section, const QString& key) const;

    // After the last section of its type, else at the end; nothing happens where it exists.
    void addSection(const ConfigSection& section);
    // False where there is no such section, and for renaming where the new name is taken.
    bool removeSection(const ConfigSection& section);
    bool renameSection(const ConfigSection& section, const QString& name);
    // Puts the sections of `type` that have these names into this order, in the places that they
    // hold together; all others stay. False where a name is missing or given twice.
    bool reorderSections(const QString& type, const QStringList& names);

    // Adds section and key where they are missing. An equal value changes nothing.
    void setValue(const ConfigSection& section, const QString& key, const QString& value);
    void removeValue(const ConfigSection& section, const QString& key);

    // Writes the file at path() in one step, mode 0600. Refuses, and says why, while the document
    // has faults or had some when it was loaded, and when the file on disk is no longer the one
    // that was loaded: whoever edits loads again and repeats the edit, so that nobody's change is
    // lost. Returns the reason, empty when saved.
    QString save();

    // Keys of one section beyond these are faults.
    static constexpr int kMaxKeys = 500;

private:
    struct Line {
        QByteArray bytes; // with its end
        ConfigLine parsed;
    };
    struct Section {
        ConfigSection id;
        int header = 0;       // index of its line
        QVector<int> entries; // indices of its lines, equal keys left out
        bool usable = true;
    };
    struct Block { // lines that move together, [begin, end)
        int begin = 0;
        int end = 0;
    };

    static Line makeLine(const QByteArray& bytes);
    // Finds sections and their entries again: after every change of lines.
    void index();
    void addSectionAt(int index);
    void addFault(int index, const QString& text);
    void addEntry(int index);
    const Section* find(const ConfigSection& section) const;
    int entry(const ConfigSection& section, const QString& key) const; // index, -1: none
    int lastEntry(const Section& section) const;
    Block block(const Section& section) const;
    void moveBlocks(const QVector<Block>& wanted);
    void replaceInLine(int index, const QByteArray& text);
    void insertLines(int index, const QList<QByteArray>& lines);
    void endLastLine();

    QString m_path;
    std::optional<QByteArray> m_onDisk; // as loaded or saved; empty: there was no file
    ConfigFaults m_faultsOnDisk;        // as loaded; edits do not mend them

    QByteArray m_byteOrderMark;
    QByteArray m_lineEnd = "\n"; // for lines that are added
    QVector<Line> m_lines;

    QVector<Section> m_sections;
    QHash<QPair<QString, QString>, int> m_usable; // type and name to index of the section
    ConfigFaults m_faults;
};

#endif // CONFIGDOCUMENT_H
