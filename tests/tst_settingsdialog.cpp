// The settings dialog: what is changed reaches the file and nothing else does, what is wrong is
// said, and operators come and go without a terminal; and the question before the window closes.
// Touches a temporary folder.

#include "operators/operators.h"
#include "secrets/filesecretstore.h"
#include "support/quietplatform.h"
#include "support/scriptedconnector.h"
#include "window/closeguard.h"
#include "window/confirmbox.h"
#include "window/dialogmessage.h"
#include "window/operatordialog.h"
#include "window/settingsdialog.h"

#include <QComboBox>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <QtTest>

namespace {

const QByteArray kFile = "# of this desk\n[poll]\ninterval = 7 # seconds\n\n"
                         "[thresholds]\ncharge-low = 30\ncharge-critical = 10\n\n"
                         "[device A]\naddress = sim:\n";

struct Desk {
    Desk()
    {
        QFile file(path());
        file.open(QIODevice::WriteOnly);
        file.write(kFile);
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
        file.close();
        list = std::make_unique<WatchList>(fleet, DeskConfig::load(path()), [this](SecretsChoice) {
            return std::make_unique<FileSecretStore>(folder.filePath("secrets"));
        });
        list->load();
        dialog = std::make_unique<SettingsDialog>(*list, nullptr, HashLimits::minimal());
        dialog->show();
    }

    QString path() const { return folder.filePath("upsdesk.conf"); }
    QByteArray bytes() const
    {
        QFile file(path());
        file.open(QIODevice::ReadOnly);
        return file.readAll();
    }
    template <typename T>
    T* field(const char* name) const
    {
        return dialog->findChild<T*>(name);
    }
    QString message() const { return dialog->findChild<DialogMessage*>()->text(); }

    // Presses a button of the operators' page and fills in the dialog that opens.
    OperatorDialog* open(const char* button) const
    {
        field<QPushButton>(button)->click();
        return dialog->findChild<OperatorDialog*>();
    }
    void fill(OperatorDialog* form, const QString& name, int level, const QString& password) const
    {
        if (!name.isEmpty())
            form->findChild<QLineEdit*>("OperatorName")->setText(name);
        form->findChild<QSpinBox*>("OperatorLevel")->setValue(level);
        form->findChild<QLineEdit*>("OperatorPassword")->setText(password);
        form->findChild<QLineEdit*>("OperatorPasswordAgain")->setText(password);
        form->accept();
    }
    void choose(int row) const
    {
        auto* table = field<QTreeWidget>("OperatorTable");
        table->setCurrentItem(table->topLevelItem(row));
    }
    QString operators() const
    {
        QStringList names;
        const DeskConfig config = DeskConfig::load(path());
        for (const OperatorAccount& account : config.operators())
            names << account.name + QString::number(account.level);
        return names.join(' ');
    }

    QTemporaryDir folder;
    Fleet fleet{[](const DeviceSettings&) { return std::make_unique<ScriptedConnector>(); }};
    std::unique_ptr<WatchList> list;
    std::unique_ptr<SettingsDialog> dialog;
};

} // namespace

class TestSettingsDialog : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { dropRemarksOfThePlatform(); }

    void changesReachTheFile()
    {
        Desk desk;
        QSignalSpy edited(desk.list.get(), &WatchList::edited);
        desk.field<QSpinBox>("interval")->setValue(9);
        desk.field<QComboBox>("store")->setCurrentIndex(1);
        desk.dialog->accept();
        QVERIFY(!desk.dialog->isVisible());
        QCOMPARE(desk.bytes(),
                 QByteArray(kFile).replace("= 7 #", "= 9 #") + "\n[secrets]\nstore = file\n");
        QCOMPARE(edited.size(), 1);
        QCOMPARE(edited.first().at(1).toString(),
                 QString::fromUtf8("Settings: interval 7 \u2192 9 s, store keychain \u2192 file"));
        QCOMPARE(desk.fleet.at(0)->settings().pollInterval, 9);
    }

    void untouchedDialogWritesNothing()
    {
        Desk desk;
        desk.list->setGuard([] { return QString("log in"); });
        desk.dialog->accept();
        QVERIFY(!desk.dialog->isVisible());
        QCOMPARE(desk.bytes(), kFile);
    }

    void whatIsWrongIsSaid()
    {
        Desk desk;
        desk.field<QSpinBox>("charge-critical")->setValue(31);
        desk.dialog->accept();
        QVERIFY(desk.dialog->isVisible());
        QVERIFY2(desk.message().contains("charge-critical is above"), qPrintable(desk.message()));
        QCOMPARE(desk.bytes(), kFile);
    }

    void operatorsWithoutATerminal()
    {
        Desk desk;
        desk.fill(desk.open("OperatorAdd"), "anna", 0, "first word");
        auto* form = desk.dialog->findChild<OperatorDialog*>();
        const auto said = [&form] { return form->findChild<DialogMessage*>()->text(); };
        QTRY_VERIFY2(said().contains("must remain"), qPrintable(said())); // level 0 alone locks all
        desk.fill(form, "anna", 1, "short");
        QVERIFY(said().contains("at least 8"));
        desk.fill(form, "anna", 1, "first word");
        QTRY_COMPARE(desk.operators(), QString("anna1"));
        QTRY_VERIFY(!desk.dialog->findChild<OperatorDialog*>());
        desk.fill(desk.open("OperatorAdd"), "bert", 0, "other word");
        QTRY_COMPARE(desk.operators(), QString("anna1 bert0"));
        QTRY_VERIFY(!desk.dialog->findChild<OperatorDialog*>());

        desk.choose(0);
        desk.fill(desk.open("OperatorChange"), {}, 3, {}); // the password stays
        QTRY_COMPARE(desk.operators(), QString("anna3 bert0"));
        const Operators operators(desk.list->operators());
        QVERIFY(operators.verify("anna", SecretText(QString("first word"))));
        QVERIFY(!desk.bytes().contains("word"));

        const auto remove = [&desk](int row) {
            desk.choose(row);
            desk.field<QPushButton>("OperatorRemove")->click();
            desk.dialog->findChild<ConfirmBox*>()->findChild<QPushButton*>("ConfirmYes")->click();
        };
        remove(0);
        QVERIFY(desk.message().contains("must remain"));
        QTRY_VERIFY(!desk.dialog->findChild<ConfirmBox*>());
        remove(1);
        QCOMPARE(desk.operators(), QString("anna3"));
        QTRY_VERIFY(!desk.dialog->findChild<ConfirmBox*>());
        remove(0); // with the last one everything is open again
        QCOMPARE(desk.operators(), QString());
        QVERIFY(desk.bytes().startsWith("# of this desk\n"));
    }

    // Cancel is what Return and Escape do; a second close is not asked about again.
    void windowAsksBeforeItCloses()
    {
        ScriptedConnector* connector = nullptr;
        Fleet fleet([&connector](const DeviceSettings&) {
            auto made = std::make_unique<ScriptedConnector>();
            connector = made.get();
            return made;
        });
        EventLog log;
        CommandDesk commands(fleet, log, [] { return CommandDesk::Operator{}; });
        DeviceSettings settings;
        settings.name = "Rack <b>3</b>";
        QWidget window;
        CloseGuard guard(commands, &window);
        window.show();
        commands.post(fleet.add(settings), 1003, {});
        const auto box = [&window] { return window.findChild<ConfirmBox*>(); };
        for (Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
            window.close();
            QVERIFY(box() && box()->informativeText().contains("Rack <b>3</b>: Self-test"));
            QCOMPARE(box()->textFormat(), Qt::PlainText);
            QTest::keyClick(box(), key);
            QTRY_VERIFY(!box());
            QVERIFY(window.isVisible());
        }
        window.close();
        box()->findChild<QPushButton*>("ConfirmYes")->click();
        QVERIFY(!window.isVisible());

        connector->finish(connector->sent.first().id, CommandOutcome::Done);
        QWidget quiet;
        CloseGuard second(commands, &quiet);
        quiet.show();
        quiet.close();
        QVERIFY(!quiet.isVisible());
    }
};

QTEST_MAIN(TestSettingsDialog)
#include "tst_settingsdialog.moc"
