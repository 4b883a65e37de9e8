// SPDX-License-Identifier: GPL-3.0-or-later
// A plug-in that reports where the controls are and what they say. Qt loads it into the unchanged program under test if
// the environment asks for it. It answers on the interface thread, so an answer also means that the program waits for
// its user.
#include <QGenericPlugin>
#include <QJsonDocument>
#include <QSocketNotifier>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <string>

#include "WidgetReport.h"

namespace sprout {

namespace {

/// Returns a socket that listens at a path, or -1 if that fails.
int ListenAt(const std::string& path)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path.empty() || path.size() >= sizeof address.sun_path)
        return -1;
    std::copy(path.begin(), path.end(), address.sun_path);
    const int listening = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    ::unlink(path.c_str());
    if (listening >= 0 && (::bind(listening, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 ||
                           ::listen(listening, 8) != 0)) {
        ::close(listening);
        return -1;
    }
    return listening;
}

/// Each connection is one request; the answer is the report.
void AnswerNext(int listening)
{
    const int connection = ::accept4(listening, nullptr, nullptr, SOCK_CLOEXEC);
    if (connection < 0)
        return;
    const QByteArray report = QJsonDocument(WidgetReport()).toJson(QJsonDocument::Compact);
    qsizetype sent = 0;
    while (sent < report.size()) {
        const ssize_t count =
            ::send(connection, report.data() + sent, static_cast<std::size_t>(report.size() - sent), MSG_NOSIGNAL);
        if (count <= 0)
            break;
        sent += count;
    }
    ::close(connection);
}

} // namespace

class WidgetsPlugin : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "widgets.json")

public:
    QObject* create(const QString& /*key*/, const QString& /*arguments*/) override
    {
        const char* path = std::getenv("SPROUT_WIDGETS");
        const int listening = ListenAt(path ? path : "");
        if (listening < 0)
            return nullptr;
        auto* notifier = new QSocketNotifier(listening, QSocketNotifier::Read);
        connect(notifier, &QSocketNotifier::activated, notifier, [listening] { AnswerNext(listening); });
        return notifier;
    }
};

} // namespace sprout

#include "WidgetsPlugin.moc"
