#include "setinfoform.h"

#include "e_event.h"
#include "msgbox.h"
#include "ui_setinfoform.h"

#include <QDebug>
#include <QPointer>
#include <QRegExpValidator>

#include <iterator>

namespace {

struct Command {
    int code;          // a CorvelEvent
    const char* value; // none: the minutes that the operator typed
};

// The index is the id of the radio button in its group.
constexpr Command kTestCommands[] = {
    {eEvent_Control_selfTest, ""},
    {eEvent_Control_disChargeToLow, ""},
    {eEvent_Control_cancelTest, ""},
};
// Standby and restart share one code on purpose: the host tells them apart by the value.
constexpr Command kPowerCommands[] = {
    {eEvent_Control_shutdownUps, "12"},
    {eEvent_Control_openUps, nullptr},
    {eEvent_Control_wakeupUps, ""},
    {eEvent_Control_openUps, "1"},
};

constexpr int kNoChoice = -1;

constexpr char kFontFamily[] = "Microsoft YaHei";
constexpr int kChoicePointSize = 11;
constexpr int kTitlePointSize = 18;

// The checked id once the operator has confirmed it, else kNoChoice. The prompt runs an event loop
// in which the host may remove the page; then the answer counts for nothing.
int confirmedChoice(const QButtonGroup* group, const char* handler)
{
    const QPointer<const QButtonGroup> alive(group);
    const QAbstractButton* choice = group->checkedButton();
    if (!choice)
        return kNoChoice;
    MsgBox prompt(MSGBOX_STYLE_CHOISE, choice->text() + QLatin1Char('?'));
    if (prompt.exec() != QDialog::Accepted || !alive)
        return kNoChoice;
    qDebug() << handler << group->checkedId();
    return group->checkedId();
}

// The position of its command.
template <std::size_t N>
void setIds(QButtonGroup& group, QRadioButton* const (&buttons)[N])
{
    int id = 0;
    for (QRadioButton* button : buttons) {
        button->setFont(QFont(QString::fromLatin1(kFontFamily), kChoicePointSize));
        group.setId(button, id++);
    }
}

} // namespace

SetInfoForm::SetInfoForm(QWidget* parent)
    : QWidget(parent)
    , ui(new Ui_SetInfoForm)
{
    ui->setupUi(this);

    QRadioButton* const tests[] = {ui->DevTest_0, ui->DevTest_2, ui->DevTest_3};
    static_assert(std::size(tests) == std::size(kTestCommands), "one button per command");
    QRadioButton* const powers[] = {ui->OffSet_0, ui->OffSet_1, ui->OffSet_2, ui->OffSet_3};
    static_assert(std::size(powers) == std::size(kPowerCommands), "one button per command");

    setIds(*ui->DevTest_Group, tests);
    setIds(*ui->OffSet_Group, powers);

    const QFont font(QString::fromLatin1(kFontFamily), kTitlePointSize, QFont::Bold);
    for (QLabel* title : {ui->label_device_test, ui->label_onoff_setting}) {
        title->setFont(font);
        title->setObjectName(QStringLiteral("DevBigTitle"));
    }
    // Renamed only now: setupUi connects the slots by the designer's names.
    for (QPushButton* button : {ui->DevTest_OK, ui->Offset_OK})
        button->setObjectName(QStringLiteral("btnWhite"));

    ui->OffSet_1_Time->setValidator(
        new QRegExpValidator(QRegExp(QStringLiteral("^[0-9]{1,8}$")), ui->OffSet_1_Time));
    ui->OffSet_1_Time->setText(QStringLiteral("60"));
    ui->DevTest_0->setChecked(true);
    ui->OffSet_0->setChecked(true);
}

SetInfoForm::~SetInfoForm()
{
    delete ui;
}

void SetInfoForm::setCurrentName(QString name)
{
    currentName = name;
}

void SetInfoForm::InitSettingFormInfo()
{
    RefreshSettingInfo();
}

void SetInfoForm::RefreshSettingInfo() {}

void SetInfoForm::control(int controlId, QString controlValue)
{
    const QMap<QString, QVariant> command{{QStringLiteral("name"), currentName},
                                          {QStringLiteral("controlId"), controlId},
                                          {QStringLiteral("controlValue"), controlValue}};
    emit postDEvent(controlId, command);
}

void SetInfoForm::on_DevTest_OK_clicked()
{
    const int id = confirmedChoice(ui->DevTest_Group, "on_DevTest_OK_clicked");
    if (id < 0 || id >= static_cast<int>(std::size(kTestCommands)))
        return;
    control(kTestCommands[id].code, QString::fromLatin1(kTestCommands[id].value));
}

void SetInfoForm::on_Offset_OK_clicked()
{
    const int id = confirmedChoice(ui->OffSet_Group, "on_Offset_OK_clicked");
    if (id < 0 || id >= static_cast<int>(std::size(kPowerCommands)))
        return;
    const Command& command = kPowerCommands[id];
    control(command.code,
            command.value ? QString::fromLatin1(command.value) : ui->OffSet_1_Time->text());
}
