#include "config/configdocument.h"

#include "private/privatefile.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>

#include <algorithm>

namespace {

struct Tr {
    Q_DECLARE_TR_FUNCTIONS(ConfigDocument)
};

const char kByteOrderMark[] = "\xef\xbb\xbf";
constexpr int kLockWait = 2000; // ms

struct FileContent {
    std::optional<QByteArray> bytes; // empty: there is no file
    QString error;
};

FileContent readFile(const QString& path)
{
    QFile file(path);
    if (!file.exists())
        return {};
    if (!QFileInfo(path).isFile())
        return {std::nullopt, Tr::tr("%1 is not a file").arg(path)};
    if (!file.open(QIODevice::ReadOnly))
        return {std::nullopt, Tr::tr("cannot read %1: %2").arg(path, file.errorString())};
    const QByteArray bytes = file.read(ConfigDocument::kMaxBytes + 1);
    if (bytes.size() > ConfigDocument::kMaxBytes)
        return {std::nullopt, Tr::tr("%1 is longer than %2 bytes; it is not read")
                                  .arg(path)
                                  .arg(ConfigDocument::kMaxBytes)};
    return {bytes.isNull() ? QByteArray("") : bytes, {}};
}

QList<QByteArray> splitLines(const QByteArray& bytes)
{
    QList<QByteArray> lines;
    for (int begin = 0; begin < bytes.size();) {
        const int newline = bytes.indexOf('\n', begin);
        const int end = newline < 0 ? bytes.size() : newline + 1;
        lines += bytes.mid(begin, end - begin);
        begin = end;
    }
    return lines;
}

} // namespace

ConfigDocument::ConfigDocument() = default;

ConfigDocument::ConfigDocument(const QByteArray& bytes)
{
    const bool marked = bytes.startsWith(kByteOrderMark);
    m_byteOrderMark = marked ? QByteArray(kByteOrderMark) : QByteArray();
    m_lines = splitLines(bytes.mid(m_byteOrderMark.size()));
    if (!m_lines.isEmpty() && m_lines.first().endsWith("\r\n"))
        m_lineEnd = "\r\n";
    parse();
    m_faultsOnDisk = m_faults;
}

ConfigDocument ConfigDocument::load(const QString& path, const QByteArray& startText)
{
    const FileContent content = readFile(path);
    ConfigDocument document(content.bytes.value_or(startText));
    document.m_path = path;
    document.m_onDisk = content.bytes;
    if (!content.error.isEmpty()) {
        document.m_faults += ConfigFault{0, ConfigSeverity::Error, content.error};
        document.m_faultsOnDisk = document.m_faults;
    }
    return document;
}

QByteArray ConfigDocument::toBytes() const
{
    return m_byteOrderMark + m_lines.join();
}

// Reading

void ConfigDocument::parse()
{
    m_parsed.clear();
    m_sections.clear();
    m_faults.clear();
    for (int i = 0; i < m_lines.size(); ++i) {
        m_parsed += parseConfigLine(lineText(i));
        const ConfigLine& line = m_parsed.constLast();
        const ConfigSection id{line.type, line.name};
        switch (line.kind) {
        case ConfigLine::Kind::Blank:
        case ConfigLine::Kind::Comment:
            break;
        case ConfigLine::Kind::Faulty:
            addFault(i, Tr::tr("%1; the line is skipped").arg(line.fault));
            break;
        case ConfigLine::Kind::FaultySection:
            addFault(i, Tr::tr("%1; the section is skipped").arg(line.fault));
            m_sections += Section{id, i, {}, false};
            break;
        case ConfigLine::Kind::Section: {
            const Section* earlier = find(id);
            if (earlier)
                addFault(i, Tr::tr("[%1] stands already in line %2; this section is skipped")
                                .arg(QString::fromUtf8(configHeader(id.type, id.name)))
                                .arg(earlier->header + 1));
            m_sections += Section{id, i, {}, !earlier};
            break;
        }
        case ConfigLine::Kind::Entry:
            addEntry(i);
            break;
        }
    }
}

void ConfigDocument::addFault(int index, const QString& text)
{
    if (m_faults.size() < kMaxFaults)
        m_faults += ConfigFault{index + 1, ConfigSeverity::Error, text};
    else if (m_faults.size() == kMaxFaults)
        m_faults += ConfigFault{index + 1, ConfigSeverity::Error,
                                Tr::tr("and more; further faults are not listed")};
}

void ConfigDocument::addEntry(int index)
{
    if (m_sections.isEmpty()) {
        addFault(index, Tr::tr("stands before the first [section]; the line is skipped"));
        return;
    }
    Section& section = m_sections.last();
    if (!section.usable)
        return;
    const QString& key = m_parsed.at(index).key;
    const auto same = [&](int other) { return m_parsed.at(other).key == key; };
    const auto earlier = std::find_if(section.entries.cbegin(), section.entries.cend(), same);
    if (earlier == section.entries.cend())
        section.entries += index;
    else
        addFault(
            index,
            Tr::tr("%1 stands already in line %2; the line is skipped").arg(key).arg(*earlier + 1));
}

const ConfigDocument::Section* ConfigDocument::find(const ConfigSection& section) const
{
    const auto found = std::find_if(m_sections.cbegin(), m_sections.cend(),
                                    [&](const Section& s) { return s.usable && s.id == section; });
    return found == m_sections.cend() ? nullptr : &*found;
}

int ConfigDocument::entry(const ConfigSection& section, const QString& key) const
{
    if (const Section* found = find(section))
        for (int index : found->entries)
            if (m_parsed.at(index).key == key.toLower())
                return index;
    return -1;
}

QVector<ConfigSection> ConfigDocument::sections(const QString& type) const
{
    QVector<ConfigSection> result;
    for (const Section& section : m_sections)
        if (section.usable && (type.isEmpty() || section.id.type == type))
            result += section.id;
    return result;
}

bool ConfigDocument::contains(const ConfigSection& section) const
{
    return find(section);
}

QStringList ConfigDocument::keys(const ConfigSection& section) const
{
    QStringList result;
    if (const Section* found = find(section))
        for (int index : found->entries)
            result += m_parsed.at(index).key;
    return result;
}

std::optional<QString> ConfigDocument::value(const ConfigSection& section, const QString& key) const
{
    const int index = entry(section, key);
    return index < 0 ? std::nullopt : std::optional<QString>(m_parsed.at(index).value);
}

int ConfigDocument::line(const ConfigSection& section) const
{
    const Section* found = find(section);
    return found ? found->header + 1 : 0;
}

int ConfigDocument::line(const ConfigSection& section, const QString& key) const
{
    return entry(section, key) + 1;
}

// Lines

QByteArray ConfigDocument::lineText(int index) const
{
    const QByteArray& line = m_lines.at(index);
    return line.left(line.size() - (line.endsWith("\r\n") ? 2 : line.endsWith('\n') ? 1 : 0));
}

void ConfigDocument::replaceInLine(int index, const QByteArray& text)
{
    const ConfigLine& parsed = m_parsed.at(index);
    QByteArray replacement = text;
    QByteArray& line = m_lines[index];
    if (line.at(parsed.begin - 1) == '=')
        replacement.prepend(' ');
    if (parsed.end < line.size() && line.at(parsed.end) == '#')
        replacement.append(' ');
    line.replace(parsed.begin, parsed.end - parsed.begin, replacement);
    parse();
}

void ConfigDocument::endLastLine()
{
    if (!m_lines.isEmpty() && !m_lines.last().endsWith('\n'))
        m_lines.last() += m_lineEnd;
}

void ConfigDocument::insertLines(int index, const QList<QByteArray>& lines)
{
    endLastLine();
    for (int i = 0; i < lines.size(); ++i)
        m_lines.insert(index + i, lines.at(i) + m_lineEnd);
    parse();
}

int ConfigDocument::lastEntry(const Section& section) const
{
    return section.entries.isEmpty() ? section.header : section.entries.constLast();
}

ConfigDocument::Block ConfigDocument::block(const Section& section) const
{
    const auto isComment = [this](int i) {
        return m_parsed.at(i).kind == ConfigLine::Kind::Comment;
    };
    Block result{section.header, lastEntry(section) + 1};
    while (result.begin > 0 && isComment(result.begin - 1))
        --result.begin;
    if (result.begin == 0)
        result.begin = section.header;
    // Comments that follow the last value without a gap, unless they lead to the next section.
    int end = result.end;
    while (end < m_lines.size() && isComment(end))
        ++end;
    if (end == m_lines.size() || m_parsed.at(end).kind == ConfigLine::Kind::Blank)
        result.end = end;
    return result;
}

// Editing

void ConfigDocument::addSection(const ConfigSection& section)
{
    if (find(section))
        return;
    int index = m_lines.size();
    for (const Section& other : qAsConst(m_sections))
        if (other.usable && other.id.type == section.type)
            index = block(other).end;
    const bool gap = index > 0 && m_parsed.at(index - 1).kind != ConfigLine::Kind::Blank;
    QList<QByteArray> lines{'[' + configHeader(section.type, section.name) + ']'};
    if (gap)
        lines.prepend(QByteArray());
    if (index < m_lines.size() && m_parsed.at(index).kind != ConfigLine::Kind::Blank)
        lines.append(QByteArray());
    insertLines(index, lines);
}

bool ConfigDocument::removeSection(const ConfigSection& section)
{
    const Section* found = find(section);
    if (!found)
        return false;
    Block lines = block(*found);
    const auto isBlank = [this](int i) { return m_parsed.at(i).kind == ConfigLine::Kind::Blank; };
    while (lines.end < m_lines.size() && isBlank(lines.end))
        ++lines.end;
    m_lines.erase(m_lines.begin() + lines.begin, m_lines.begin() + lines.end);
    parse();
    return true;
}

bool ConfigDocument::renameSection(const ConfigSection& section, const QString& name)
{
    const Section* found = find(section);
    const ConfigSection renamed{section.type, name};
    if (!found || (!(renamed == section) && find(renamed)))
        return false;
    if (!(renamed == section))
        replaceInLine(found->header, configHeader(section.type, name));
    return true;
}

bool ConfigDocument::reorderSections(const QString& type, const QStringList& names)
{
    for (const QString& name : names)
        if (!find({type, name}) || names.count(name) > 1)
            return false;
    endLastLine();
    QVector<Block> places;
    QVector<QList<QByteArray>> contents;
    for (const QString& name : names) {
        places += block(*find({type, name}));
        contents += m_lines.mid(places.last().begin, places.last().end - places.last().begin);
    }
    std::sort(places.begin(), places.end(),
              [](const Block& a, const Block& b) { return a.begin < b.begin; });
    // From the end, so that the places before it keep their lines.
    for (int i = places.size() - 1; i >= 0; --i) {
        const Block& place = places.at(i);
        m_lines.erase(m_lines.begin() + place.begin, m_lines.begin() + place.end);
        for (int j = 0; j < contents.at(i).size(); ++j)
            m_lines.insert(place.begin + j, contents.at(i).at(j));
    }
    parse();
    return true;
}

void ConfigDocument::setValue(const ConfigSection& section, const QString& key,
                              const QString& value)
{
    const int index = entry(section, key);
    if (index >= 0 && m_parsed.at(index).value == value)
        return;
    if (index >= 0) {
        replaceInLine(index, configValue(value));
        return;
    }
    addSection(section);
    if (const Section* found = find(section))
        insertLines(lastEntry(*found) + 1, {key.toUtf8() + " = " + configValue(value)});
}

void ConfigDocument::removeValue(const ConfigSection& section, const QString& key)
{
    const int index = entry(section, key);
    if (index < 0)
        return;
    m_lines.removeAt(index);
    parse();
}

// Saving

QString ConfigDocument::save()
{
    const ConfigFaults& faults = m_faultsOnDisk.isEmpty() ? m_faults : m_faultsOnDisk;
    if (!faults.isEmpty()) {
        const ConfigFault& fault = faults.constFirst();
        return Tr::tr("%1 is not written because it has faults (line %2: %3); mend it with a text "
                      "editor first")
            .arg(m_path)
            .arg(fault.line)
            .arg(fault.text);
    }
    const QString folder = QFileInfo(m_path).absolutePath();
    if (!makePrivateFolder(folder))
        return Tr::tr("cannot make the folder %1").arg(folder);
    QLockFile lock(m_path + QStringLiteral(".lock"));
    if (!lock.tryLock(kLockWait))
        return Tr::tr(
                   "%1 is not written: another upsdesk is writing it, or its folder is read-only")
            .arg(m_path);
    const FileContent current = readFile(m_path);
    if (current.bytes != m_onDisk || !current.error.isEmpty())
        return Tr::tr("%1 is not written because it was changed by another program; read it again "
                      "and repeat the change")
            .arg(m_path);
    const QByteArray bytes = toBytes();
    const QString error = writePrivateFile(m_path, bytes);
    if (error.isEmpty())
        m_onDisk = bytes;
    return error;
}
