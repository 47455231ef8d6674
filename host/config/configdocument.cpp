#include "config/configdocument.h"

#include "private/privatefile.h"

#include <QCoreApplication>

#include <QSet>

#include <algorithm>

namespace {

struct Tr {
    Q_DECLARE_TR_FUNCTIONS(ConfigDocument)
};

const char kByteOrderMark[] = "\xef\xbb\xbf";

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
    for (const QByteArray& line : splitLines(bytes.mid(m_byteOrderMark.size())))
        m_lines += makeLine(line);
    if (!m_lines.isEmpty() && m_lines.constFirst().bytes.endsWith("\r\n"))
        m_lineEnd = "\r\n";
    index();
    m_faultsOnDisk = m_faults;
}

ConfigDocument ConfigDocument::load(const QString& path, const QByteArray& startText)
{
    const FileContent content = readBoundedFile(path, kMaxBytes);
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
    QByteArray bytes = m_byteOrderMark;
    for (const Line& line : m_lines)
        bytes += line.bytes;
    return bytes;
}

// Reading

ConfigDocument::Line ConfigDocument::makeLine(const QByteArray& bytes)
{
    const int end = bytes.endsWith("\r\n") ? 2 : bytes.endsWith('\n') ? 1 : 0;
    return {bytes, parseConfigLine(bytes.left(bytes.size() - end))};
}

void ConfigDocument::index()
{
    m_sections.clear();
    m_usable.clear();
    m_faults.clear();
    for (int i = 0; i < m_lines.size(); ++i) {
        const ConfigLine& line = m_lines.at(i).parsed;
        switch (line.kind) {
        case ConfigLine::Kind::Blank:
        case ConfigLine::Kind::Comment:
            break;
        case ConfigLine::Kind::Faulty:
            addFault(i, Tr::tr("%1; the line is skipped").arg(line.fault));
            break;
        case ConfigLine::Kind::FaultySection:
            addFault(i, Tr::tr("%1; the section is skipped").arg(line.fault));
            m_sections += Section{{}, i, {}, false};
            break;
        case ConfigLine::Kind::Section:
            addSectionAt(i);
            break;
        case ConfigLine::Kind::Entry:
            addEntry(i);
            break;
        }
    }
}

void ConfigDocument::addSectionAt(int index)
{
    const ConfigLine& line = m_lines.at(index).parsed;
    const ConfigSection id{line.type, line.name};
    const Section* earlier = find(id);
    if (earlier)
        addFault(index, Tr::tr("[%1] stands already in line %2; this section is skipped")
                            .arg(QString::fromUtf8(configHeader(id.type, id.name)))
                            .arg(earlier->header + 1));
    else
        m_usable.insert({id.type, id.name}, m_sections.size());
    m_sections += Section{id, index, {}, !earlier};
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
    const QString& key = m_lines.at(index).parsed.key;
    const auto same = [&](int other) { return m_lines.at(other).parsed.key == key; };
    const auto earlier = std::find_if(section.entries.cbegin(), section.entries.cend(), same);
    if (earlier != section.entries.cend())
        addFault(
            index,
            Tr::tr("%1 stands already in line %2; the line is skipped").arg(key).arg(*earlier + 1));
    else if (section.entries.size() < kMaxKeys)
        section.entries += index;
    else
        addFault(index,
                 Tr::tr("the section has more than %1 keys; the line is skipped").arg(kMaxKeys));
}

const ConfigDocument::Section* ConfigDocument::find(const ConfigSection& section) const
{
    const auto found = m_usable.find({section.type, section.name});
    return found == m_usable.end() ? nullptr : &m_sections.at(*found);
}

int ConfigDocument::entry(const ConfigSection& section, const QString& key) const
{
    const QString lower = key.toLower();
    if (const Section* found = find(section))
        for (int index : found->entries)
            if (m_lines.at(index).parsed.key == lower)
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
            result += m_lines.at(index).parsed.key;
    return result;
}

std::optional<QString> ConfigDocument::value(const ConfigSection& section, const QString& key) const
{
    const int index = entry(section, key);
    return index < 0 ? std::nullopt : std::optional<QString>(m_lines.at(index).parsed.value);
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

void ConfigDocument::replaceInLine(int index, const QByteArray& text)
{
    const ConfigLine& parsed = m_lines.at(index).parsed;
    QByteArray replacement = text;
    QByteArray line = m_lines.at(index).bytes;
    if (line.at(parsed.begin - 1) == '=')
        replacement.prepend(' ');
    if (parsed.end < line.size() && line.at(parsed.end) == '#')
        replacement.append(' ');
    line.replace(parsed.begin, parsed.end - parsed.begin, replacement);
    m_lines[index] = makeLine(line);
    this->index();
}

void ConfigDocument::endLastLine()
{
    if (!m_lines.isEmpty() && !m_lines.constLast().bytes.endsWith('\n'))
        m_lines.last().bytes += m_lineEnd;
}

void ConfigDocument::insertLines(int index, const QList<QByteArray>& lines)
{
    endLastLine();
    for (int i = 0; i < lines.size(); ++i)
        m_lines.insert(index + i, makeLine(lines.at(i) + m_lineEnd));
    this->index();
}

int ConfigDocument::lastEntry(const Section& section) const
{
    return section.entries.isEmpty() ? section.header : section.entries.constLast();
}

ConfigDocument::Block ConfigDocument::block(const Section& section) const
{
    const auto isComment = [this](int i) {
        return m_lines.at(i).parsed.kind == ConfigLine::Kind::Comment;
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
    if (end == m_lines.size() || m_lines.at(end).parsed.kind == ConfigLine::Kind::Blank)
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
    const bool gap = index > 0 && m_lines.at(index - 1).parsed.kind != ConfigLine::Kind::Blank;
    QList<QByteArray> lines{'[' + configHeader(section.type, section.name) + ']'};
    if (gap)
        lines.prepend(QByteArray());
    if (index < m_lines.size() && m_lines.at(index).parsed.kind != ConfigLine::Kind::Blank)
        lines.append(QByteArray());
    insertLines(index, lines);
}

bool ConfigDocument::removeSection(const ConfigSection& section)
{
    const Section* found = find(section);
    if (!found)
        return false;
    Block lines = block(*found);
    const auto isBlank = [this](int i) {
        return m_lines.at(i).parsed.kind == ConfigLine::Kind::Blank;
    };
    while (lines.end < m_lines.size() && isBlank(lines.end))
        ++lines.end;
    m_lines.erase(m_lines.begin() + lines.begin, m_lines.begin() + lines.end);
    index();
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
    endLastLine();
    QVector<Block> wanted;
    QSet<int> headers;
    for (const QString& name : names) {
        const Section* section = find({type, name});
        if (!section || headers.contains(section->header))
            return false;
        headers += section->header;
        wanted += block(*section);
    }
    moveBlocks(wanted);
    index();
    return true;
}

// Into each other's places, in this order.
void ConfigDocument::moveBlocks(const QVector<Block>& wanted)
{
    QVector<Block> places = wanted;
    std::sort(places.begin(), places.end(),
              [](const Block& a, const Block& b) { return a.begin < b.begin; });
    QVector<Line> lines;
    lines.reserve(m_lines.size());
    int next = 0; // first line that is not yet in its new place
    for (int i = 0; i < places.size(); ++i) {
        lines += m_lines.mid(next, places.at(i).begin - next);
        lines += m_lines.mid(wanted.at(i).begin, wanted.at(i).end - wanted.at(i).begin);
        next = places.at(i).end;
    }
    lines += m_lines.mid(next);
    m_lines = lines;
}

void ConfigDocument::setValue(const ConfigSection& section, const QString& key,
                              const QString& value)
{
    const int index = entry(section, key);
    if (index >= 0 && m_lines.at(index).parsed.value == value)
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
    this->index();
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
    return withFileLock(m_path, [this] {
        const FileContent current = readBoundedFile(m_path, kMaxBytes);
        if (current.bytes != m_onDisk || !current.error.isEmpty())
            return Tr::tr("%1 is not written because it was changed by another program; read it "
                          "again and repeat the change")
                .arg(m_path);
        const QByteArray bytes = toBytes();
        const QString error = writePrivateFile(m_path, bytes);
        if (error.isEmpty())
            m_onDisk = bytes;
        return error;
    });
}
