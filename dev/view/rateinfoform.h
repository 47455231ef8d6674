#ifndef RATEINFOFORM_H
#define RATEINFOFORM_H

// The detail page: device, battery, input, output, bypass and rated values in six panels.
// May touch: parameter descriptors, data keys and formatting; sends nothing to the host.

#include <devview/devview_export.h>

#include <QList>
#include <QMap>
#include <QPalette>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QWidget>

class ParameterInformation;
class QLabel;
class QTableWidget;
class Ui_RateInfoForm;

/// The detail page: 35 labelled values in the panels DEVICE, INPUT, BATTERY, OUTPUT, BYPASS, RATE.
///
/// What it shows, and by which key, is a catalogue of ParameterInformation; the units are those of
/// _UPS_REG_ENUM, with powers in **W** and battery temperature in **tenths**. It differs from the
/// other pages on purpose: statuses 0 and 2 of the battery are empty here, and "input PF:" and
/// "bypass PF:" show power. ChildForm keeps it in a scroll area; a host that places it alone should
/// do so too. Style sheets find it as `#realDataTable` with `#PanelTitle`, `#PanelBody`,
/// `#PanalBodyKeyName` and `#PanalBodyKeyValue`.
/// \image html detail.png "The detail page of a single-phase UPS"
class DEVVIEW_EXPORT RateInfoForm : public QWidget
{
    Q_OBJECT

public:
    /// Builds the panels with their placeholders: "-" and the unit, or the unit alone.
    explicit RateInfoForm(QWidget* parent = nullptr);
    ~RateInfoForm() override;

    /// Only stores the name.
    void setCurrentName(QString name);
    /// Shows one snapshot: every value label gets the text of getPvalue(). A line count of exactly
    /// 3 shows three phases, any other phase A alone. Nothing of an earlier snapshot stays.
    void RefreshRateInfo(QMap<int, QVariant> data);

    /// The text of one value of the last snapshot, its unit after a blank. Missing or non-numeric
    /// keys read 0 or empty. A scaled integer outside the range of int is shown as that range's
    /// end. Formats without a text of their own give the blank and the unit alone. A null
    /// descriptor gives an empty text.
    QString getPvalue(ParameterInformation* p);

    /// Appends a new descriptor to list, which owns it, and returns it for setFormat().
    /// \param list one of the catalogue's, or the caller's own
    /// \param name label, already translated
    /// \param value placeholder until the first value
    /// \param unit follows the value after a blank; empty: none
    /// \param factor multiplies the raw value
    ParameterInformation* addDataDesc(QList<ParameterInformation*>& list, QString name,
                                      QString value, QString unit, float factor);
    /// Fills an empty panel: a title above one row per descriptor, label left and value right.
    /// \param panel a widget without layout; owns what is put into it
    /// \param title already translated
    /// \param rows the descriptors, in the order they are shown; not owned
    /// \param labels gets the value labels, in the order of rows
    void ShowPanalView(QWidget* panel, QString title, QList<ParameterInformation*> rows,
                       QList<QLabel*>& labels);

    /// \cond
    // Declared for hosts that bring their own bodies; the library neither defines nor calls them.
    void InitRateFormInfo();
    void initialDataTable(QString title, QList<ParameterInformation*> rows, QTableWidget*& table,
                          int columns);
    /// \endcond

protected:
    Ui_RateInfoForm* ui;       ///< the empty form; owned
    QStringList rateDataArray; ///< kept for hosts that derive; always empty
    QString currentName;       ///< what setCurrentName() was given

    /// \name The catalogue, owned by the form
    /// @{
    QList<ParameterInformation*> data_device;  ///< 7 texts
    QList<ParameterInformation*> data_battery; ///< V, A, degrees, min, s, %, status
    QList<ParameterInformation*> data_recinv;  ///< always empty
    QList<ParameterInformation*> data_input;   ///< V, A, Hz, W, number of failures
    QList<ParameterInformation*> data_output;  ///< V, A, Hz, W, %, source
    QList<ParameterInformation*> data_bypass;  ///< V, A, W, Hz
    QList<ParameterInformation*> data_rate;    ///< V, Hz, V, Hz, W, VA
    /// @}

    /// \cond
    // Kept for hosts that derive; never created.
    QTableWidget* table_device = nullptr;
    QTableWidget* table_battery = nullptr;
    QTableWidget* table_recinv = nullptr;
    QTableWidget* table_input = nullptr;
    QTableWidget* table_output = nullptr;
    QTableWidget* table_bypass = nullptr;
    QTableWidget* table_rate = nullptr;
    /// \endcond

    /// \name Value labels
    /// Index i shows descriptor i of the list of the same name.
    /// @{
    QList<QLabel*> m_label_device;  ///< of data_device
    QList<QLabel*> m_label_battery; ///< of data_battery
    QList<QLabel*> m_label_input;   ///< of data_input
    QList<QLabel*> m_label_output;  ///< of data_output
    QList<QLabel*> m_label_bypass;  ///< of data_bypass
    QList<QLabel*> m_label_rate;    ///< of data_rate
    /// @}
    QMap<int, QVariant> realData; ///< the last snapshot
    QPalette palette;             ///< kept for hosts that derive

    /// Fills the catalogue and builds the panels. The constructor does; nobody calls it twice.
    void InitRateData();

private:
    struct Panel;
    static const Panel kPanels[];
    void fillCatalogue(const Panel& panel);

    QVariant rawAt(int key, int offset) const;
    int scaledInt(const ParameterInformation& p, int offset = 0) const;
    double scaledFloat(const ParameterInformation& p, int offset = 0) const;
    QString characterText(const ParameterInformation& p) const;
    QString valueText(const ParameterInformation& p) const;
};

#endif // RATEINFOFORM_H
