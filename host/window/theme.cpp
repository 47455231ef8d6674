#include "window/theme.h"

#include "window/deskstyle.h"
#include "window/urgencycolors.h"

#include <QApplication>
#include <QFile>
#include <QFont>
#include <QFontMetrics>
#include <QPalette>
#include <QWidget>

namespace {

struct ThemeRow {
    const char* styleSheet;
    QColor window;
    QColor base;
    QColor text;
    QColor button;
    QColor highlight;
};

const ThemeRow kLight{":/upsdesk/light.qss", {0xfa, 0xfa, 0xfa}, {0xff, 0xff, 0xff},
                      {0x22, 0x26, 0x33},    {0xf0, 0xf1, 0xf6}, {0x29, 0x47, 0xc6}};
const ThemeRow kDark{":/upsdesk/dark.qss", {0x1d, 0x20, 0x29}, {0x25, 0x29, 0x34},
                     {0xe6, 0xe8, 0xef},   {0x30, 0x35, 0x43}, {0x4a, 0x6c, 0xf0}};

// Families that the views ask for, and metrically close ones that Debian carries; Chinese comes
// from the next family that has it. The first lookup
// of a family takes some ms: better now than when the first device is opened.
void substituteFonts()
{
    const struct {
        QString family;
        QStringList substitutes;
    } rows[] = {
        {QStringLiteral("Microsoft YaHei"),
         {QStringLiteral("Liberation Sans"), QStringLiteral("DejaVu Sans"),
          QStringLiteral("Noto Sans CJK SC"), QStringLiteral("WenQuanYi Micro Hei")}},
        {QStringLiteral("Arial"), {QStringLiteral("Liberation Sans")}},
        {QStringLiteral("Times New Roman"), {QStringLiteral("Liberation Serif")}},
    };
    for (const auto& row : rows) {
        QFont::insertSubstitutions(row.family, row.substitutes);
        QFontMetrics(QFont(row.family)).horizontalAdvance(row.family);
    }
}

} // namespace

static void initStyleResources()
{
    Q_INIT_RESOURCE(upsdesk);
}

void applyTheme(Theme theme)
{
    initStyleResources();
    substituteFonts();
    const ThemeRow& row = theme == Theme::Dark ? kDark : kLight;

    QApplication::setStyle(new DeskStyle);
    QApplication::setFont(QFont(QStringLiteral("Liberation Sans"), 10));
    QPalette palette(row.button, row.window);
    palette.setColor(QPalette::Base, row.base);
    palette.setColor(QPalette::Highlight, row.highlight);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    for (auto role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
        palette.setColor(role, row.text);
    palette.setColor(QPalette::ToolTipBase, row.base);
    palette.setColor(QPalette::PlaceholderText, fadedColor(row.text, row.base));
    for (auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        QColor faint = row.text;
        faint.setAlphaF(0.45);
        palette.setColor(QPalette::Disabled, role, faint);
    }
    QApplication::setPalette(palette);

    QString styleSheet;
    for (const QString& path : {QStringLiteral(":/upsdesk/common.qss"), QString(row.styleSheet)}) {
        QFile file(path);
        if (file.open(QFile::ReadOnly))
            styleSheet += QString::fromUtf8(file.readAll());
    }
    qApp->setStyleSheet(styleSheet);
}

void giveThemeGrounds(const QWidget& view)
{
    // By the names that the library gives them; the style sheets of the themes have these, too.
    for (const char* name : {"basicTable", "PanelTitle", "label_table", "label_graphic"})
        for (QWidget* part : view.findChildren<QWidget*>(QLatin1String(name)))
            part->setStyleSheet(QString());
}
