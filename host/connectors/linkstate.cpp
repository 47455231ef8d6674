#include "connectors/linkstate.h"

QString linkStateName(LinkState link)
{
    switch (link) {
    case LinkState::Live:
        return QStringLiteral("live");
    case LinkState::Stale:
        return QStringLiteral("stale");
    case LinkState::Lost:
        return QStringLiteral("lost");
    case LinkState::Refused:
        return QStringLiteral("refused");
    case LinkState::Connecting:
        break;
    }
    return QStringLiteral("connecting");
}
