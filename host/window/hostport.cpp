#include "window/hostport.h"

#include "connectors/addressrange.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QUrl>

namespace {

constexpr int kLongestHost = 255;
constexpr int kLastPort = 65535;

} // namespace

HostPort::HostPort(int standardPort, QWidget* parent)
    : QWidget(parent)
    , m_host(new QLineEdit)
    , m_port(new QSpinBox)
{
    m_host->setObjectName(QStringLiteral("HostEdit"));
    m_host->setAccessibleName(tr("Host"));
    m_host->setPlaceholderText(tr("name or IP address"));
    m_host->setMaxLength(kLongestHost);
    m_port->setObjectName(QStringLiteral("PortEdit"));
    m_port->setAccessibleName(tr("Port"));
    m_port->setRange(1, kLastPort);
    m_port->setValue(standardPort);
    auto* label = new QLabel(tr("&Port"));
    label->setBuddy(m_port);

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_host, 1);
    row->addWidget(label);
    row->addWidget(m_port);
    setFocusProxy(m_host);
    setFocusPolicy(m_host->focusPolicy()); // without one a mnemonic leads nowhere

    connect(m_host, &QLineEdit::textChanged, this, &HostPort::edited);
    connect(m_port, QOverload<int>::of(&QSpinBox::valueChanged), this, &HostPort::edited);
}

void HostPort::setTakesRange()
{
    m_takesRange = true;
    m_host->setAccessibleName(tr("Range of addresses"));
    m_host->setPlaceholderText(tr("10.0.0.0/24 or 10.0.0.5-60"));
}

void HostPort::showAddress(const DeviceAddress& address)
{
    m_host->setText(address.host);
    m_port->setValue(address.port);
}

void HostPort::readAddress(DeviceAddress& address) const
{
    address.host = host();
    address.port = static_cast<quint16>(m_port->value());
}

QString HostPort::host() const
{
    return m_host->text().trimmed();
}

QString HostPort::error() const
{
    if (m_takesRange)
        return AddressRange::parse(host()).error;
    if (host().isEmpty())
        return tr("Enter the name or the IP address of the host.");
    QUrl url;
    url.setHost(host());
    if (url.host().isEmpty() || isMadeUpHost(url.host(), host()))
        return tr("\"%1\" is neither a host name nor an IP address.").arg(host());
    return QString();
}
