#include "window/secretedit.h"

namespace {

constexpr int kLongestSecret = 255;

} // namespace

SecretEdit::SecretEdit(QWidget* parent)
    : QLineEdit(parent)
{
    setEchoMode(QLineEdit::Password);
    setMaxLength(kLongestSecret);
    setInputMethodHints(Qt::ImhSensitiveData | Qt::ImhNoPredictiveText | Qt::ImhNoAutoUppercase);
}

void SecretEdit::setKept(const QString& secret)
{
    m_kept = secret;
    clear();
    setPlaceholderText(secret.isEmpty() ? QString() : tr("kept"));
}
