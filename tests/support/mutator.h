#ifndef MUTATOR_H
#define MUTATOR_H

// Spoils good octets in the same way every time it starts from the same seed.
// May touch: Qt Core and the standard library.

#include <QByteArray>

#include <algorithm>
#include <random>

class Mutator
{
public:
    explicit Mutator(quint32 seed)
        : m_random(seed)
    {}

    int below(int limit)
    {
        return static_cast<int>(m_random() % static_cast<quint32>(std::max(limit, 1)));
    }

    // One to eight changes: octets flipped, replaced, dropped, doubled, cut off, numbers blown up.
    QByteArray spoil(QByteArray octets)
    {
        for (int changes = 1 + below(8); changes > 0; --changes)
            spoilOnce(octets);
        return octets;
    }

private:
    void spoilOnce(QByteArray& octets)
    {
        static const char* const dainties[] = {"\"", "\\", "\n", "-1", "4294967296", "1e999", "nan",
                                               "%n", "..", " ",  "\r", "\xC3\xBC",   "\x1B[", "[]"};
        const int at = below(octets.size());
        const int length = 1 + below(16);
        switch (below(7)) {
        case 0:
            if (!octets.isEmpty())
                octets[at] = static_cast<char>(octets[at] ^ (1 << below(8)));
            break;
        case 1:
            if (!octets.isEmpty())
                octets[at] = static_cast<char>(below(256));
            break;
        case 2:
            octets.remove(at, length);
            break;
        case 3:
            octets.insert(below(octets.size()), octets.mid(at, length * 8));
            break;
        case 4:
            if (below(8) == 0)
                octets.truncate(at);
            break;
        case 5:
            octets.insert(at, QByteArray(1 << below(10), static_cast<char>(below(256))));
            break;
        default:
            octets.insert(at, dainties[below(static_cast<int>(std::size(dainties)))]);
        }
    }

    std::mt19937 m_random;
};

#endif // MUTATOR_H
