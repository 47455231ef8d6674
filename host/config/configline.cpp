#include "config/configline.h"

#include <QCoreApplication>
#include <QTextCodec>

#include <algorithm>
#include <cctype>
#include <cstring>

namespace {

struct Tr {
    Q_DECLARE_TR_FUNCTIONS(ConfigLine)
};

bool isBlank(char c)
{
    return c == ' ' || c == '\t';
}

bool isWordCharacter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '.' ||
           c == '-' || c == '_';
}

bool isControl(uint c)
{
    return c < 0x20 || c == 0x7f;
}

bool isUtf8(const QByteArray& bytes)
{
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    QTextCodec::codecForMib(106)->toUnicode(bytes.constData(), bytes.size(), &state);
    return state.invalidChars == 0 && state.remainingChars == 0;
}

// Reads one line from left to right.
class LineReader
{
public:
    explicit LineReader(const QByteArray& bytes)
        : m_bytes(bytes)
    {}

    int position() const { return m_position; }
    bool atEnd() const { return m_position >= m_bytes.size(); }
    char peek() const { return atEnd() ? '\0' : m_bytes.at(m_position); }
    void skip() { ++m_position; }

    void skipBlanks()
    {
        while (isBlank(peek()))
            ++m_position;
    }

    QString word()
    {
        const int begin = m_position;
        while (isWordCharacter(peek()))
            ++m_position;
        return QString::fromLatin1(m_bytes.mid(begin, m_position - begin)).toLower();
    }

    // Up to one of `stops`, without blanks at its end.
    QString textUntil(const char* stops)
    {
        const int begin = m_position;
        while (!atEnd() && !strchr(stops, peek()))
            ++m_position;
        return trimmedText(begin);
    }

    // Up to the comment or the end of the line, without blanks at its end.
    QString bareValue()
    {
        const int begin = m_position;
        while (!atEnd() &&
               !(peek() == '#' && (m_position == begin || isBlank(m_bytes.at(m_position - 1)))))
            ++m_position;
        return trimmedText(begin);
    }

    // From the opening to the closing quote; false where the text does not end or escapes badly.
    bool quoted(QString& text)
    {
        QByteArray plain;
        const auto flush = [&] {
            text += QString::fromUtf8(plain);
            plain.clear();
        };
        for (skip(); !atEnd(); skip()) {
            if (peek() == '"') {
                skip();
                flush();
                return true;
            }
            if (peek() != '\\') {
                plain += peek();
                continue;
            }
            skip();
            flush();
            if (!escape(text))
                return false;
        }
        return false;
    }

    bool onlyCommentLeft()
    {
        skipBlanks();
        return atEnd() || peek() == '#';
    }

private:
    QString trimmedText(int begin)
    {
        m_end = m_position;
        while (m_end > begin && isBlank(m_bytes.at(m_end - 1)))
            --m_end;
        m_position = m_end;
        return QString::fromUtf8(m_bytes.mid(begin, m_end - begin));
    }

    bool escape(QString& text)
    {
        switch (peek()) {
        case '"':
        case '\\':
            text += QLatin1Char(peek());
            return true;
        case 'n':
            text += QLatin1Char('\n');
            return true;
        case 't':
            text += QLatin1Char('\t');
            return true;
        case 'u':
            return unicode(text);
        default:
            return false;
        }
    }

    // Four digits.
    bool unicode(QString& text)
    {
        const QByteArray digits = m_bytes.mid(m_position + 1, 4);
        bool ok = digits.size() == 4 && std::all_of(digits.begin(), digits.end(), [](char c) {
                      return isxdigit(static_cast<unsigned char>(c));
                  });
        const ushort unit = ok ? digits.toUShort(&ok, 16) : 0;
        m_position += 4;
        text += QChar(unit);
        return ok;
    }

    const QByteArray& m_bytes;
    int m_position = 0;
    int m_end = 0;
};

ConfigLine faulty(ConfigLine::Kind kind, const QString& reason)
{
    ConfigLine line;
    line.kind = kind;
    line.fault = reason;
    return line;
}

const char* const kBadQuotes =
    QT_TRANSLATE_NOOP("ConfigLine", "the quoted text does not end, or holds an escape other than "
                                    "\\\" \\\\ \\n \\t \\uXXXX");

ConfigLine parseSection(LineReader reader)
{
    const auto fault = [](const QString& reason) {
        return faulty(ConfigLine::Kind::FaultySection, reason);
    };
    ConfigLine line;
    line.kind = ConfigLine::Kind::Section;
    reader.skip();
    line.begin = reader.position();
    reader.skipBlanks();
    line.type = reader.word();
    if (line.type.isEmpty())
        return fault(Tr::tr("a section looks like [type] or [type \"name\"]"));
    reader.skipBlanks();
    if (reader.peek() == '"') {
        if (!reader.quoted(line.name))
            return fault(Tr::tr(kBadQuotes));
    } else {
        line.name = reader.textUntil("]\"#");
    }
    reader.skipBlanks();
    line.end = reader.position();
    if (reader.peek() != ']')
        return fault(Tr::tr("a section looks like [type] or [type \"name\"]"));
    reader.skip();
    if (!reader.onlyCommentLeft())
        return fault(Tr::tr("only a comment may follow the closing bracket"));
    return line;
}

ConfigLine parseEntry(LineReader reader)
{
    const auto fault = [](const QString& reason) {
        return faulty(ConfigLine::Kind::Faulty, reason);
    };
    ConfigLine line;
    line.kind = ConfigLine::Kind::Entry;
    line.key = reader.word();
    reader.skipBlanks();
    if (line.key.isEmpty() || reader.peek() != '=')
        return fault(Tr::tr("neither a [section] nor key = value nor a # comment"));
    reader.skip();
    reader.skipBlanks();
    line.begin = reader.position();
    if (reader.peek() != '"') {
        line.value = reader.bareValue();
        line.end = reader.position();
        return line;
    }
    if (!reader.quoted(line.value))
        return fault(Tr::tr(kBadQuotes));
    line.end = reader.position();
    if (!reader.onlyCommentLeft())
        return fault(Tr::tr("only a comment may follow the closing quote"));
    return line;
}

bool isLoneSurrogate(const QString& text, int i)
{
    const QChar c = text.at(i);
    if (c.isHighSurrogate())
        return i + 1 >= text.size() || !text.at(i + 1).isLowSurrogate();
    return c.isLowSurrogate() && (i == 0 || !text.at(i - 1).isHighSurrogate());
}

// Characters that a file cannot hold as they are.
bool needsCode(const QString& text, int i)
{
    return isControl(text.at(i).unicode()) || isLoneSurrogate(text, i);
}

bool needsQuotes(const QString& text)
{
    if (text.isEmpty())
        return false;
    const auto blank = [](QChar c) { return c == QLatin1Char(' ') || c == QLatin1Char('\t'); };
    if (text.startsWith(QLatin1Char('"')) || blank(text.front()) || blank(text.back()))
        return true;
    for (int i = 0; i < text.size(); ++i)
        if (needsCode(text, i) ||
            (text.at(i) == QLatin1Char('#') && (i == 0 || blank(text.at(i - 1)))))
            return true;
    return false;
}

QByteArray quoted(const QString& text)
{
    QString result;
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c == QLatin1Char('"') || c == QLatin1Char('\\'))
            result += QLatin1Char('\\') + QString(c);
        else if (c == QLatin1Char('\n'))
            result += QLatin1String("\\n");
        else if (c == QLatin1Char('\t'))
            result += QLatin1String("\\t");
        else if (needsCode(text, i))
            result += QStringLiteral("\\u%1").arg(c.unicode(), 4, 16, QLatin1Char('0'));
        else
            result += c;
    }
    return '"' + result.toUtf8() + '"';
}

// What no line may hold; empty: nothing is wrong.
QString faultOf(const QByteArray& bytes)
{
    if (bytes.size() > ConfigLine::kMaxBytes)
        return Tr::tr("longer than %1 bytes").arg(ConfigLine::kMaxBytes);
    if (std::any_of(bytes.begin(), bytes.end(),
                    [](char c) { return c != '\t' && isControl(static_cast<uchar>(c)); }))
        return Tr::tr("holds control characters");
    return isUtf8(bytes) ? QString() : Tr::tr("is not UTF-8 text");
}

} // namespace

ConfigLine parseConfigLine(const QByteArray& bytes)
{
    LineReader reader(bytes);
    reader.skipBlanks();
    if (reader.atEnd())
        return {};
    // A comment is kept byte by byte, whatever it holds.
    if (reader.peek() == '#' || reader.peek() == ';') {
        ConfigLine line;
        line.kind = ConfigLine::Kind::Comment;
        return line;
    }
    const bool section = reader.peek() == '[';
    const auto kind = section ? ConfigLine::Kind::FaultySection : ConfigLine::Kind::Faulty;
    if (const QString fault = faultOf(bytes); !fault.isEmpty())
        return faulty(kind, fault);
    return section ? parseSection(reader) : parseEntry(reader);
}

QByteArray configValue(const QString& text)
{
    return needsQuotes(text) ? quoted(text) : text.toUtf8();
}

QByteArray configHeader(const QString& type, const QString& name)
{
    return name.isEmpty() ? type.toUtf8() : type.toUtf8() + ' ' + quoted(name);
}
