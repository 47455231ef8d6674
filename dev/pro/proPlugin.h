#ifndef PROPLUGIN_H
#define PROPLUGIN_H

// What a host programs against: the device view it knows, and the descriptor of one shown value.
// May touch: Qt and the export macro; no view.

#include <devview/devview_export.h>

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QWidget>

// How RateInfoForm turns the raw value of a ParameterInformation into text.
enum StrFormatType {
    StrFormat_Int,    // one integer, scaled and truncated
    StrFormat_Int2,   // integer; keys sigNo, +1, +2 when lines is 3
    StrFormat_Int3,   // integer; keys sigNo, +2, +4 when lines is 3
    StrFormat_Int4,   // integer valid in min..max, both included; "--" outside
    StrFormat_Float1, // one float, scaled, one decimal
    StrFormat_Float2, // float; keys sigNo, +1, +2 when lines is 3
    StrFormat_Float3, // reserved: shows the unit alone
    StrFormat_Float4, // reserved: shows the unit alone
    StrFormat_Time,   // reserved: shows the unit alone
    StrFormat_Str,    // text, one character (low byte) per key, strLength keys, UTF-8
    StrFormat_Str2,   // text, whole in one key, white space simplified
    StrFormat_combo   // code that comboxMap turns into a text
};

// One displayed value: label, unit, data key, scale and format. A plain record; nothing fails.
class DEVVIEW_EXPORT ParameterInformation
{
public:
    ParameterInformation();

    void setFormat(int sigNo, int formatType, int strLength);
    // Mind the order: the lower bound comes first. The bounds matter to StrFormat_Int4 only.
    void setFormat(int sigNo, int formatType, int min, int max);
    // 3 makes Int2, Int3 and Float2 show three phases; any other number shows phase A alone.
    void setLines(int lines);
    // Text i stands for code i. A text given twice keeps its last code.
    void addCombo(QStringList texts);

    // Declared for hosts that bring their own bodies; the library neither defines nor calls them.
    void addCombo(QStringList texts, QList<float> codes);
    void changeFormat(int formatType);
    void changeRange(int min, int max);

    QString strName;  // label, already translated
    QString strValue; // placeholder until the first value
    QString strUnit;  // empty: no unit
    float factor = 0; // multiplies the raw value
    int max = 0;      // upper bound, valid itself
    int min = 0;      // lower bound, valid itself
    int formatType = StrFormat_Int;
    int sigNo = 0;                // data key of the value, or of its first component
    QString formatStr;            // kept for the host
    int strLength = 0;            // number of character keys of a StrFormat_Str text
    int lines = 1;                // 3: three phases
    QMap<QString, int> comboxMap; // text to code
};

// The device view as a host knows it. The order of the virtual operations is the binary contract
// with hosts: never reorder, insert or remove one. All operations belong to the GUI thread.
class DEVVIEW_EXPORT CollectView : public QWidget
{
    Q_OBJECT

public:
    // Starts as a top-level widget whatever parent is given: the host places the view itself.
    explicit CollectView(QWidget* parent = nullptr)
        : QWidget(nullptr)
    {
        Q_UNUSED(parent)
    }
    ~CollectView() override = default;

    // Names the device; control commands carry this name.
    virtual void setName(QString name) = 0;
    // Stores the language index; repaints nothing.
    virtual void setLanguage(int index) { language = index; }
    // Shows what the last flushData stored.
    virtual void refreshData() = 0;
    virtual void refreshLayout() {}
    // Replaces the whole snapshot (keys of _UPS_REG_ENUM); shows it with the next refreshData.
    virtual void flushData(QMap<int, QVariant> snapshot) { dataMap = snapshot; }
    // Stores one entry of device information; an existing name is overwritten.
    virtual void flushUpsInfo(QString name, QVariant value) { upsInfoMap.insert(name, value); }
    // Tells who is at the desk. Level 1 and above may command the device.
    virtual void setUserInfo(QString user, int level) = 0;

signals:
    // Asks the host to act on the device. code: a CorvelEvent; command: "name" (device name),
    // "controlId" (the code again) and "controlValue" (text, empty where there is none).
    void postDEvent(int code, QMap<QString, QVariant> command);

protected:
    QMap<int, QVariant> dataMap;        // the latest snapshot
    QMap<QString, QVariant> upsInfoMap; // what flushUpsInfo stored
    QString viewName;
    int language = 0;
    int auxValue = 0; // kept for the host
    QString auxText;  // kept for the host
};

#endif // PROPLUGIN_H
