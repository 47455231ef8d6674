#include "window/formarea.h"

#include <QDialog>
#include <QGuiApplication>
#include <QScreen>

namespace {

constexpr int kFrame = 40; // px that the dialog's title and borders may take

} // namespace

FormArea::FormArea(QWidget* form, QWidget* parent)
    : QScrollArea(parent)
{
    setFocusPolicy(Qt::NoFocus); // it follows the fields
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setWidget(form);
}

void fitScreen(QDialog* dialog, const QSize& wanted)
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    dialog->resize(screen ? wanted.boundedTo(screen->availableSize() - QSize(kFrame, kFrame))
                          : wanted);
}
