#include "window/viewerline.h"

#include "viewer/viewer.h"
#include "window/devicesummary.h"
#include "window/plainlabel.h"

#include <QHBoxLayout>
#include <QStyle>
#include <QVariant>

#include <algorithm>

namespace {

constexpr int kMostNamed = 3;

struct Line {
    QString text;
    bool isBad = false;
};

QString siteName(const QString& site)
{
    return site.isEmpty() ? ViewerLine::tr("one without a name") : site;
}

// The silent ones by name, the longest silence first.
QString silentText(QVector<Viewer::Word> silent, int all)
{
    std::sort(silent.begin(), silent.end(),
              [](const auto& a, const auto& b) { return a.ageMs > b.ageMs; });
    QStringList names;
    for (const Viewer::Word& word : silent.mid(0, kMostNamed))
        names << ViewerLine::tr("%1 for %2").arg(siteName(word.site), ageText(word.ageMs));
    if (silent.size() > kMostNamed)
        names << ViewerLine::tr("%n more", nullptr, silent.size() - kMostNamed);
    return ViewerLine::tr("%1 of %2 collectors silent: %3")
        .arg(silent.size())
        .arg(all)
        .arg(names.join(QStringLiteral(", ")));
}

Line lineOf(const Viewer& viewer)
{
    if (!viewer.fault().isEmpty())
        return {ViewerLine::tr("The shared store is not reached: %1").arg(viewer.fault()), true};
    const QVector<Viewer::Word> words = viewer.words();
    if (words.isEmpty())
        return {ViewerLine::tr("No collector has written into the shared store yet."), true};
    QVector<Viewer::Word> silent;
    qint64 oldest = 0;
    for (const Viewer::Word& word : words) {
        oldest = std::max(oldest, word.ageMs);
        if (word.isSilent)
            silent += word;
    }
    if (!silent.isEmpty())
        return {silentText(silent, words.size()), true};
    const QString age = ageText(std::max<qint64>(oldest, 1000));
    if (words.size() == 1)
        return {ViewerLine::tr("Viewer of one collector; its word is at most %1 old").arg(age),
                false};
    return {ViewerLine::tr("Viewer of %1 collectors; their word is at most %2 old")
                .arg(words.size())
                .arg(age),
            false};
}

} // namespace

ViewerLine::ViewerLine(QWidget* parent)
    : QFrame(parent)
    , m_text(new PlainLabel)
{
    setObjectName(QStringLiteral("ViewerLine"));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(16, 2, 16, 2);
    row->addWidget(m_text);
    hide();
}

void ViewerLine::follow(const Viewer& viewer)
{
    const auto refresh = [this, &viewer] {
        const Line line = lineOf(viewer);
        show(line.text, line.isBad);
    };
    connect(&viewer, &Viewer::heard, this, refresh);
    show(tr("Waiting for the shared store"), false);
}

void ViewerLine::show(const QString& text, bool isBad)
{
    m_text->setText(text);
    setAccessibleName(text);
    if (isVisible() && property("bad") == QVariant(isBad))
        return;
    setProperty("bad", isBad);
    style()->unpolish(this); // the style sheet looks at the property
    style()->polish(this);
    setVisible(true);
}
