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

class DEVVIEW_EXPORT RateInfoForm : public QWidget
{
    Q_OBJECT

public:
    explicit RateInfoForm(QWidget* parent = nullptr);
    ~RateInfoForm() override;

    // Only stores the name.
    void setCurrentName(QString name);
    // Shows one snapshot: every value label gets the text of getPvalue. A line count of exactly 3
    // shows three phases, any other phase A alone. Before the first call the labels show their
    // placeholders.
    void RefreshRateInfo(QMap<int, QVariant> data);

    // The text of one value of the last snapshot, its unit after a blank. Missing or non-numeric
    // keys read 0 or empty. A scaled integer outside the range of int is shown as that range's end.
    // Formats without a text of their own give the blank and the unit alone. No descriptor: empty.
    QString getPvalue(ParameterInformation* p);

    // Appends a new descriptor to list, which owns it, and returns it for setFormat.
    ParameterInformation* addDataDesc(QList<ParameterInformation*>& list, QString name,
                                      QString value, QString unit, float factor);
    // Fills an empty panel: a title above one row per descriptor. labels: the value labels, in the
    // order of rows; owned by the panel.
    void ShowPanalView(QWidget* panel, QString title, QList<ParameterInformation*> rows,
                       QList<QLabel*>& labels);

    // Declared for hosts that bring their own bodies; the library neither defines nor calls them.
    void InitRateFormInfo();
    void initialDataTable(QString title, QList<ParameterInformation*> rows, QTableWidget*& table,
                          int columns);

protected:
    Ui_RateInfoForm* ui;
    QStringList rateDataArray; // kept for hosts that derive; always empty
    QString currentName;
    // The catalogue, owned by the form. There is no rectifier and inverter row.
    QList<ParameterInformation*> data_device;
    QList<ParameterInformation*> data_battery;
    QList<ParameterInformation*> data_recinv;
    QList<ParameterInformation*> data_input;
    QList<ParameterInformation*> data_output;
    QList<ParameterInformation*> data_bypass;
    QList<ParameterInformation*> data_rate;
    // Kept for hosts that derive; never created.
    QTableWidget* table_device = nullptr;
    QTableWidget* table_battery = nullptr;
    QTableWidget* table_recinv = nullptr;
    QTableWidget* table_input = nullptr;
    QTableWidget* table_output = nullptr;
    QTableWidget* table_bypass = nullptr;
    QTableWidget* table_rate = nullptr;
    // Value labels; index i shows descriptor i of the list of the same name.
    QList<QLabel*> m_label_device;
    QList<QLabel*> m_label_battery;
    QList<QLabel*> m_label_input;
    QList<QLabel*> m_label_output;
    QList<QLabel*> m_label_bypass;
    QList<QLabel*> m_label_rate;
    QMap<int, QVariant> realData; // the last snapshot
    QPalette palette;             // kept for hosts that derive

    // Fills the catalogue and builds the panels, once.
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
