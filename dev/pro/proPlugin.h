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

/// \file
/// What a host programs against: CollectView, the device view as a host knows it, and
/// ParameterInformation, the descriptor of one shown value.

/// How RateInfoForm turns the raw value of a ParameterInformation into text. "Scaled" means raw
/// value times `factor`, in single precision; integers are cut towards zero. Formats that show
/// three phases do so when `lines` is 3, as "A/B/C".
enum StrFormatType {
    StrFormat_Int,    ///< one integer, scaled: 2305 by 0.1 is "230"
    StrFormat_Int2,   ///< integer, scaled; three phases from keys sigNo, +1, +2
    StrFormat_Int3,   ///< integer, scaled; three phases from keys sigNo, +2, +4 (word pairs)
    StrFormat_Int4,   ///< integer, scaled, valid in min..max, both included; `--` outside
    StrFormat_Float1, ///< one number, scaled, one decimal: 2305 by 0.1 is "230.5"
    StrFormat_Float2, ///< number, scaled, one decimal; three phases from keys sigNo, +1, +2
    StrFormat_Float3, ///< reserved: shows the unit alone
    StrFormat_Float4, ///< reserved: shows the unit alone
    StrFormat_Time,   ///< reserved: shows the unit alone
    StrFormat_Str,    ///< text, UTF-8, one byte (low byte) per key, strLength keys, up to a 0
    StrFormat_Str2,   ///< text, whole in one key, white space simplified
    StrFormat_combo   ///< code that comboxMap turns into a text; unknown codes give no text
};

/// One displayed value: label, unit, data key, scale and format. A plain record; nothing fails.
/// RateInfoForm::addDataDesc() makes one, RateInfoForm::getPvalue() reads one.
class DEVVIEW_EXPORT ParameterInformation
{
public:
    /// A StrFormat_Int of key 0 with factor 0 and one line; all texts empty.
    ParameterInformation();

    /// Where the value comes from (a key of _UPS_REG_ENUM), how it is shown (a StrFormatType; other
    /// numbers show the unit alone), and for a StrFormat_Str the number of its keys, else 0.
    void setFormat(int sigNo, int formatType, int strLength);
    /// The same for a StrFormat_Int4 with the bounds of the *scaled* value. Mind the order: the
    /// lower bound comes first.
    void setFormat(int sigNo, int formatType, int min, int max);
    /// 3 makes Int2, Int3 and Float2 show three phases; any other number shows phase A alone.
    void setLines(int lines);
    /// Text i stands for code i, from 0. A text given twice keeps its last code, so that its first
    /// one has no text any more.
    void addCombo(QStringList texts);

    /// \name Declared for hosts that bring their own bodies
    /// The library neither defines nor calls them.
    /// @{
    void addCombo(QStringList texts, QList<float> codes); ///< texts with codes of their own
    void changeFormat(int formatType);                    ///< another StrFormatType
    void changeRange(int min, int max);                   ///< other bounds
    /// @}

    QString strName;                ///< label, already translated
    QString strValue;               ///< placeholder until the first value
    QString strUnit;                ///< follows the value after a blank; empty: no unit
    float factor = 0;               ///< multiplies the raw value
    int max = 0;                    ///< upper bound, valid itself; StrFormat_Int4 only
    int min = 0;                    ///< lower bound, valid itself; StrFormat_Int4 only
    int formatType = StrFormat_Int; ///< a StrFormatType
    int sigNo = 0;                  ///< data key of the value, or of its first component
    QString formatStr;              ///< kept for the host
    int strLength = 0;            ///< number of byte keys of a StrFormat_Str text; up to 0: no text
    int lines = 1;                ///< 3: three phases
    QMap<QString, int> comboxMap; ///< text to code
};

/// The device view of one UPS as a host knows it; ChildForm is the one the library brings.
///
/// On every poll a host calls flushData() with all it knows, then refreshData(); it connects
/// postDEvent() and carries out what comes. All operations belong to the GUI thread, none of them
/// blocks, fails or throws; a poll in another thread hands its snapshot over by a queued signal.
///
/// The order of the virtual operations is the binary contract with hosts: never reorder, insert or
/// remove one.
class DEVVIEW_EXPORT CollectView : public QWidget
{
    Q_OBJECT

public:
    /// Starts as a top-level widget whatever parent is given: the host places the view itself
    /// (`layout->addWidget(view)`), which also makes it the owner.
    explicit CollectView(QWidget* parent = nullptr)
        : QWidget(nullptr)
    {
        Q_UNUSED(parent)
    }
    ~CollectView() override = default;

    /// Names the device; control commands carry this name as "name". Empty until set.
    virtual void setName(QString name) = 0;
    /// Stores the host's language index; changes no text and repaints nothing. Texts follow the
    /// translators that are installed when the view is made.
    virtual void setLanguage(int index) { language = index; }
    /// Shows what the last flushData() stored; before the first, every value as 0 or empty.
    virtual void refreshData() = 0;
    /// For views that arrange themselves anew; does nothing here.
    virtual void refreshLayout() {}
    /// Replaces the whole snapshot (keys and units: _UPS_REG_ENUM); the next refreshData() shows
    /// it. What the new one lacks reads as 0 or empty, so always give a complete one, and none at
    /// all rather than an empty one when the device does not answer.
    virtual void flushData(QMap<int, QVariant> snapshot) { dataMap = snapshot; }
    /// Stores one entry of device information; an existing name is overwritten. No view of the
    /// library shows it.
    virtual void flushUpsInfo(QString name, QVariant value) { upsInfoMap.insert(name, value); }
    /// Tells who is at the desk. From level 1 up the control page is enabled. That is a convenience
    /// and no lock: a host checks again when a command arrives.
    virtual void setUserInfo(QString user, int level) = 0;

signals:
    /// Asks the host to act on the device; the operator has confirmed it.
    /// \param code a CorvelEvent, see there for the six that come
    /// \param command "name" (the text of setName()), "controlId" (`int`, the code again) and
    /// "controlValue" (text, empty where the command has no value; what an operator typed is
    /// unchecked)
    void postDEvent(int code, QMap<QString, QVariant> command);

protected:
    QMap<int, QVariant> dataMap;        ///< the latest snapshot
    QMap<QString, QVariant> upsInfoMap; ///< what flushUpsInfo() stored
    QString viewName;                   ///< what setName() was given
    int language = 0;                   ///< what setLanguage() was given
    int auxValue = 0;                   ///< kept for the host
    QString auxText;                    ///< kept for the host
};

#endif // PROPLUGIN_H
