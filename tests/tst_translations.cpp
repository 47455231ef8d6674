// In every language: each text that a window asks for is in a catalogue, nothing that the English
// has room for is cut off, and the window changes its language while it is used.

#include "desk.h"
#include "support/quietplatform.h"
#include "support/recordingdevice.h"
#include "support/shownwindows.h"
#include "window/language.h"
#include "window/theme.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QMenuBar>
#include <QTabBar>
#include <QTranslator>
#include <QtTest>

Q_DECLARE_METATYPE(LanguageChoice)

namespace {

constexpr LanguageChoice kLanguages[] = {LanguageChoice::English, LanguageChoice::German,
                                         LanguageChoice::French, LanguageChoice::Spanish,
                                         LanguageChoice::Chinese};
const QChar kCut(0x2026);

// Hears what is asked for, and leaves the answer to the others.
class Listener : public QTranslator
{
public:
    QString translate(const char* context, const char* text, const char* comment,
                      int) const override
    {
        asked.insert({context, text, comment});
        return {};
    }
    bool isEmpty() const override { return false; }

    mutable QSet<QByteArrayList> asked;
};

// Qt has texts of its own, and each language is called by its own name in all of them.
bool isTranslated(const QByteArrayList& text)
{
    const auto isItsName = [&text](LanguageChoice c) { return text[1] == language::nameOf(c); };
    return !text[0].startsWith('Q') &&
           std::none_of(std::begin(kLanguages), std::end(kLanguages), isItsName);
}

// A label or button that has less room than its text.
QString faultOf(const QWidget* widget)
{
    const QFontMetrics metrics = widget->fontMetrics();
    if (const auto* label = qobject_cast<const QLabel*>(widget)) {
        const QSize room = label->contentsRect().size();
        const bool isElided = label->inherits("ElidedLabel"); // seen by what it paints
        const int line = metrics.height();
        if (!isElided && label->wordWrap() && // a sign of another font is a little higher
            label->heightForWidth(label->width()) > label->height() + line / 2)
            return label->text();
        if (!isElided && !label->wordWrap() && label->pixmap(Qt::ReturnByValue).isNull() &&
            metrics.size(Qt::TextShowMnemonic, label->text()).width() > room.width())
            return label->text();
    }
    if (const auto* button = qobject_cast<const QAbstractButton*>(widget))
        if (metrics.size(Qt::TextShowMnemonic, button->text()).width() > button->width())
            return button->text();
    if (const auto* bar = qobject_cast<const QTabBar*>(widget))
        for (int i = 0; i < bar->count(); ++i)
            if (!bar->rect().contains(bar->tabRect(i)))
                return bar->tabText(i);
    return {};
}

// Texts that end with dots of their own, as an item that opens a dialog does.
QStringList dotted(const QWidget* window)
{
    QStringList texts;
    for (const auto* label : window->findChildren<QLabel*>())
        texts << label->text();
    for (const auto* button : window->findChildren<QAbstractButton*>())
        texts << button->text().remove(QLatin1Char('&'));
    return texts.filter(QRegularExpression(kCut + QStringLiteral("$")));
}

// What is cut off in a window.
QStringList cutIn(QWidget* window)
{
    QCoreApplication::processEvents();
    QStringList cut;
    for (const QWidget* widget : window->findChildren<QWidget*>()) {
        const QString fault = widget->isVisibleTo(window) ? faultOf(widget) : QString();
        if (!fault.isEmpty())
            cut << fault;
    }
    RecordingDevice recorder(window->size());
    window->render(&recorder, QPoint(), QRegion(), QWidget::DrawChildren);
    const QStringList whole = dotted(window);
    for (const QString& text : recorder.texts()) // in runs: an access key ends one
        if (text.endsWith(kCut) && std::none_of(whole.begin(), whole.end(),
                                                [&](const QString& t) { return t.endsWith(text); }))
            cut << text;
    return cut;
}

// Every page of a device, of one phase and of three, and every window; what is cut off in them.
QStringList cutAnywhere()
{
    QStringList cut;
    for (int lines : {1, 3}) {
        ShownDevice shown(lines);
        for (int number = 0; number < DevicePage::pages().size(); ++number) {
            shown.page->showPage(number);
            for (const QString& text : cutIn(&shown.window))
                cut << QString("page %1 (%2): %3").arg(number).arg(lines).arg(text);
        }
    }
    AllWindows windows;
    for (int number = 0; number < windows.count(); ++number) {
        QWidget* window = windows.at(number);
        window->show();
        for (auto* tabs : window->findChildren<QTabWidget*>())
            for (int tab = 0; tab < tabs->count(); ++tab) {
                tabs->setCurrentIndex(tab);
                for (const QString& text : cutIn(window))
                    cut << window->windowTitle() + ": " + text;
            }
        for (const QString& text : cutIn(window))
            cut << window->windowTitle() + ": " + text;
    }
    windows.window.openJournal();
    for (const QString& text : cutIn(&windows.window))
        cut << "journal: " + text;
    cut.removeDuplicates();
    return cut;
}

QStringList menuTexts(const QWidget* window)
{
    QStringList texts;
    for (const QAction* menu : window->findChild<QMenuBar*>()->actions())
        texts << menu->text();
    return texts;
}

} // namespace

class TestTranslations : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup() { language::apply(LanguageChoice::English); }
    void textsAreThereAndFit_data() { rowsOfLanguages(); }
    void textsAreThereAndFit();
    void accessKeysAreDistinct_data() { rowsOfLanguages(); }
    void accessKeysAreDistinct();
    void theWindowChangesItsLanguage();

private:
    static void rowsOfLanguages();

    QTemporaryDir m_home;
};

void TestTranslations::initTestCase()
{
    dropRemarksOfThePlatform();
    for (const char* folder : {"XDG_CONFIG_HOME", "XDG_STATE_HOME", "XDG_DATA_HOME"})
        qputenv(folder, m_home.path().toUtf8());
    applyTheme(Theme::Light);
}

void TestTranslations::rowsOfLanguages()
{
    QTest::addColumn<LanguageChoice>("choice");
    for (LanguageChoice choice : kLanguages)
        QTest::newRow(qPrintable(language::codeOf(choice))) << choice;
}

void TestTranslations::textsAreThereAndFit()
{
    QFETCH(LanguageChoice, choice);
    language::apply(choice);
    Listener listener;
    QCoreApplication::installTranslator(&listener);
    const QStringList cut = cutAnywhere();
    QCoreApplication::removeTranslator(&listener);
    QVERIFY2(cut.isEmpty(), qPrintable(cut.join('\n')));
    if (choice == LanguageChoice::English)
        return;
    QTranslator desk;
    QTranslator views;
    QVERIFY(desk.load(":/translations/upsdesk_" + language::codeOf(choice)));
    QVERIFY(views.load(":/translations/devview_" + language::codeOf(choice)));
    QStringList missing;
    for (const QByteArrayList& text : qAsConst(listener.asked)) {
        const auto isIn = [&text](const QTranslator& catalogue) {
            return !catalogue.translate(text[0], text[1], text[2], 1).isNull();
        };
        if (isTranslated(text) && !isIn(desk) && !isIn(views))
            missing << text[0] + ": " + text[1];
    }
    QVERIFY(listener.asked.size() > 500);
    QVERIFY2(missing.isEmpty(), qPrintable(missing.join('\n')));
}

void TestTranslations::accessKeysAreDistinct()
{
    QFETCH(LanguageChoice, choice);
    language::apply(choice);
    AllWindows windows;
    QStringList twice;
    for (QMenu* menu : windows.window.menuBar()->findChildren<QMenu*>()) {
        QMap<QString, QString> taken;
        for (const QAction* action : menu->actions()) {
            const QString key = QKeySequence::mnemonic(action->text()).toString();
            if (!key.isEmpty() && taken.contains(key))
                twice << action->text() + " and " + taken.value(key);
            taken.insert(key, action->text());
        }
    }
    QVERIFY2(twice.isEmpty(), qPrintable(twice.join('\n')));
}

void TestTranslations::theWindowChangesItsLanguage()
{
    Desk desk(DeskOptions(), DeskConfig::load());
    desk.open();
    const auto window = [] {
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (widget->isVisible() && widget->inherits("MainWindow"))
                return qobject_cast<MainWindow*>(widget);
        return static_cast<MainWindow*>(nullptr);
    };
    QVERIFY(menuTexts(window()).contains("&File"));
    emit window()->languageChosen(LanguageChoice::German);
    QTRY_VERIFY(menuTexts(window()).contains("&Datei"));
    QVERIFY(window()->currentPage()); // what was open is open
    QCOMPARE(DeskConfig::load().settings().language, LanguageChoice::German);
    emit window()->languageChosen(LanguageChoice::English);
    QTRY_VERIFY(menuTexts(window()).contains("&File"));
}

QTEST_MAIN(TestTranslations)
#include "tst_translations.moc"
