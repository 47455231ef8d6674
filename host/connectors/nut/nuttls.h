#ifndef NUTTLS_H
#define NUTTLS_H

// The client's side of TLS on a connection to a NUT server.
// May touch: NSS, which libupsclient is built on. Blocks: for a worker thread only.

struct PRFileDesc;

// The handshake on a connected socket; null when it fails. The result takes what the library keeps
// as "ssl", and is closed by the library. The descriptor is the caller's own and stays open.
//
// Any certificate will do: servers of this kind sign their own, and the configuration names no
// authority to trust. The password is safe from listeners, not from an impostor.
//
// libupsclient has a handshake of its own, but goes on in plain text after it has failed, leaks
// what it had made by then, and reports on the terminal.
PRFileDesc* startNutTls(int fd);

#endif // NUTTLS_H
