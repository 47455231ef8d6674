#ifndef ELIDEDLABEL_H
#define ELIDEDLABEL_H

// A label for text from a device.
// May touch: Qt Widgets only.

#include <devview/devview_export.h>

#include <QLabel>

/// One line of plain text, cut with "..." where it does not fit, the rest in the tool tip: for text
/// that comes from a device and may be anything.
///
/// Whatever the text, the layout around it keeps its shape: mark-up is shown as it stands, line
/// breaks as blanks. `text()` stays the full text.
/// \image html detail.png "The detail page, whose values are such labels"
class DEVVIEW_EXPORT ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    /// \param text as the device gives it; of a longer one the first 1000 characters are shown
    /// \param minimumCharacters a text of up to about this length is never cut
    /// \param parent as of any widget
    ElidedLabel(const QString& text, int minimumCharacters, QWidget* parent = nullptr);

    QSize sizeHint() const override;        ///< the text's own, up to some 40 characters, px
    QSize minimumSizeHint() const override; ///< the text's own, up to minimumCharacters, px

protected:
    bool event(QEvent* event) override;           ///< shows the full text as tool tip of a cut one
    void paintEvent(QPaintEvent* event) override; ///< frame and cut text

private:
    QString shownText() const;
    QSize sizeFor(int maxCharacters) const;

    int m_minimumCharacters;
};

#endif // ELIDEDLABEL_H
