#pragma once

#include "remote/RemoteKind.h"
#include "remote/TrustedKeys.h"

#include <QByteArray>
#include <QJsonObject>
#include <QTcpServer>

#include <map>
#include <string>
#include <vector>

class QTcpSocket;

namespace tavrik {

/// A web server on this machine, which answers what the program may ask the network for. Its answers are signed
/// with a key of its own, whose other half everybody can read: the program is to be opened with `keys`. Main
/// thread.
class SampleServer {
public:
    SampleServer();

    static std::vector<TrustedKey> keys();

    /// Where a service is asked.
    std::string address(RemoteKind kind) const;

    /// From now on a service answers this, signed. Without it there is nothing at its address.
    void say(RemoteKind kind, QJsonObject content);

    /// From now on it takes requests and answers nothing.
    void keepSilent(bool isSilent) { m_isSilent = isSilent; }

    /// Since the beginning, of both services.
    int requests() const { return m_requests; }

private:
    void answer(QTcpSocket& socket);

    QTcpServer m_server;
    std::map<std::string, QByteArray> m_answers; ///< by path
    bool m_isSilent = false;
    int m_requests = 0;
};

} // namespace tavrik
