#include "connectors/nut/nuttls.h"

#include <nss.h>
#include <private/pprio.h>
#include <ssl.h>

#include <unistd.h>

namespace {

bool initialiseOnce()
{
    static const bool done =
        NSS_NoDB_Init(nullptr) == SECSuccess && NSS_SetDomesticPolicy() == SECSuccess;
    return done;
}

SECStatus acceptAnyCertificate(void*, PRFileDesc*, PRBool, PRBool)
{
    return SECSuccess;
}

// On a descriptor of its own, which goes with it.
PRFileDesc* wrap(int fd)
{
    const int copy = dup(fd);
    if (copy < 0)
        return nullptr;
    PRFileDesc* const plain = PR_ImportTCPSocket(copy);
    if (!plain) {
        ::close(copy);
        return nullptr;
    }
    PRFileDesc* const tls = SSL_ImportFD(nullptr, plain);
    if (!tls)
        PR_Close(plain);
    return tls;
}

} // namespace

PRFileDesc* startNutTls(int fd)
{
    PRFileDesc* const tls = initialiseOnce() ? wrap(fd) : nullptr;
    if (!tls)
        return nullptr;
    if (SSL_AuthCertificateHook(tls, acceptAnyCertificate, nullptr) == SECSuccess &&
        SSL_ResetHandshake(tls, PR_FALSE) == SECSuccess && SSL_ForceHandshake(tls) == SECSuccess)
        return tls;
    PR_Close(tls);
    return nullptr;
}
