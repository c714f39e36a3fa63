// SPDX-License-Identifier: MIT
#include "tests/platform/printing/PrintServer.h"

#include "tests/harness/TestHome.h"
#include "tests/harness/WaitUntil.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include <gtest/gtest.h>

#include <csignal>
#include <cstring>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

const QByteArray oddPrinterDescription = R"ppd(*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*PCFileName: "ODD.PPD"
*Manufacturer: "Quillbay"
*Product: "(Odd Margins)"
*PSVersion: "(3010.000) 0"
*ModelName: "Quillbay Odd Margins"
*ShortNickName: "Quillbay Odd Margins"
*NickName: "Quillbay Odd Margins"
*LanguageLevel: "3"
*ColorDevice: False
*DefaultColorSpace: Gray
*FileSystem: False
*OpenUI *PageSize/Media Size: PickOne
*OrderDependency: 10 AnySetup *PageSize
*DefaultPageSize: A4
*PageSize Letter/US Letter: "<</PageSize[612 792]>>setpagedevice"
*PageSize A4/A4: "<</PageSize[595 842]>>setpagedevice"
*PageSize A5/A5: "<</PageSize[420 595]>>setpagedevice"
*PageSize Legal/US Legal: "<</PageSize[612 1008]>>setpagedevice"
*PageSize OddCard/Odd Card: "<</PageSize[300 500]>>setpagedevice"
*CloseUI: *PageSize
*OpenUI *PageRegion: PickOne
*OrderDependency: 10 AnySetup *PageRegion
*DefaultPageRegion: A4
*PageRegion Letter/US Letter: "<</PageSize[612 792]>>setpagedevice"
*PageRegion A4/A4: "<</PageSize[595 842]>>setpagedevice"
*PageRegion A5/A5: "<</PageSize[420 595]>>setpagedevice"
*PageRegion Legal/US Legal: "<</PageSize[612 1008]>>setpagedevice"
*PageRegion OddCard/Odd Card: "<</PageSize[300 500]>>setpagedevice"
*CloseUI: *PageRegion
*DefaultImageableArea: A4
*ImageableArea Letter: "9 10 601 780"
*ImageableArea A4: "9 10 584 830"
*ImageableArea A5: "9 10 409 583"
*ImageableArea Legal: "9 10 601 996"
*ImageableArea OddCard: "20 30 260 450"
*DefaultPaperDimension: A4
*PaperDimension Letter: "612 792"
*PaperDimension A4: "595 842"
*PaperDimension A5: "420 595"
*PaperDimension Legal: "612 1008"
*PaperDimension OddCard: "300 500"
)ppd";

namespace {

constexpr char serverConfiguration[] = R"(Listen FOLDER/socket
LogLevel warn
Browsing Off
WebInterface No
DefaultAuthType None
<Location />
Order allow,deny
Allow all
</Location>
<Policy default>
<Limit All>
Order deny,allow
</Limit>
</Policy>
)";

constexpr char fileConfiguration[] = R"(FileDevice Yes
ServerRoot FOLDER/conf
StateDir FOLDER/state
CacheDir FOLDER/cache
RequestRoot FOLDER/spool
TempDir FOLDER/tmp
AccessLog FOLDER/log/access
ErrorLog FOLDER/log/error
PageLog FOLDER/log/page
)";

QString programPath(const char *name)
{
    const QString program = QString::fromLatin1(name);
    QString inPath = QStandardPaths::findExecutable(program);
    if (!inPath.isEmpty())
        return inPath;
    return QStandardPaths::findExecutable(program, {QStringLiteral("/usr/sbin"), QStringLiteral("/sbin")});
}

sockaddr_un socketAddress(const QString &path)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const QByteArray name = QFile::encodeName(path);
    if (name.size() < static_cast<qsizetype>(sizeof address.sun_path))
        std::memcpy(address.sun_path, name.constData(), static_cast<size_t>(name.size()));
    else
        ADD_FAILURE() << "the temporary folder's name is too long for a socket in it";
    return address;
}

bool takesConnections(const QString &path)
{
    const sockaddr_un address = socketAddress(path);
    const int socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const bool isConnected =
        ::connect(socket, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0;
    ::close(socket);
    return isConnected;
}

void writeFile(const QString &path, const QByteArray &contents)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size())
        ADD_FAILURE() << "cannot write " << path.toStdString();
}

void useServer(const QString &socket)
{
    ::setenv("CUPS_SERVER", QFile::encodeName(socket).constData(), 1);
}

} // namespace

bool PrintServer::isInstalled()
{
    // Queues with a printer description need the filters of package "cups".
    return !programPath("cupsd").isEmpty() && !programPath("lpadmin").isEmpty()
        && !programPath("lpoptions").isEmpty() && QFile::exists(QStringLiteral("/usr/share/cups/mime"));
}

PrintServer::PrintServer()
    : m_folder(TestHome::instance().root() + QStringLiteral("/cups"))
{
    for (const char *name : {"conf", "state", "cache", "spool", "tmp", "log"})
        QDir().mkpath(m_folder + u'/' + QString::fromLatin1(name));
    const QString socket = m_folder + QStringLiteral("/socket");
    const QString configuration = m_folder + QStringLiteral("/conf/cupsd.conf");
    const QString files = m_folder + QStringLiteral("/conf/cups-files.conf");
    writeFile(configuration, QByteArray(serverConfiguration).replace("FOLDER", QFile::encodeName(m_folder)));
    writeFile(files, QByteArray(fileConfiguration).replace("FOLDER", QFile::encodeName(m_folder)));
    // Where AppArmor confines the server, it does so by path: the system's one may not read a test's folder.
    const QString copy = m_folder + QStringLiteral("/cupsd");
    QFile::copy(programPath("cupsd"), copy);
    // No test that crashes may leave a server behind.
    m_server.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
    m_server.start(
        copy, {QStringLiteral("-f"), QStringLiteral("-c"), configuration, QStringLiteral("-s"), files});
    if (!waitUntil([&] { return takesConnections(socket); })) {
        QFile log(m_folder + QStringLiteral("/log/error"));
        log.open(QIODevice::ReadOnly);
        ADD_FAILURE() << "the print server did not start: " << log.readAll().toStdString()
                      << m_server.readAllStandardError().toStdString();
    }
    useServer(socket);
}

PrintServer::~PrintServer()
{
    m_server.kill();
    m_server.waitForFinished();
    useServer(m_folder + QStringLiteral("/no-server"));
}

void PrintServer::addQueue(const char *name, const QByteArray &description)
{
    QStringList arguments{QStringLiteral("-p"), QString::fromLatin1(name), QStringLiteral("-E"),
        QStringLiteral("-v"), QStringLiteral("file:///dev/null")};
    if (!description.isEmpty()) {
        const QString path = m_folder + QStringLiteral("/tmp/description.ppd");
        writeFile(path, description);
        arguments += {QStringLiteral("-P"), path};
    }
    run("lpadmin", arguments);
}

void PrintServer::removeQueue(const char *name)
{
    run("lpadmin", {QStringLiteral("-x"), QString::fromLatin1(name)});
}

void PrintServer::makeDefault(const char *name)
{
    run("lpadmin", {QStringLiteral("-d"), QString::fromLatin1(name)});
}

void PrintServer::setServerOption(const char *queue, const char *option)
{
    run("lpadmin",
        {QStringLiteral("-p"), QString::fromLatin1(queue), QStringLiteral("-o"),
            QString::fromLatin1(option)});
}

void PrintServer::setUserOption(const char *queue, const char *option)
{
    run("lpoptions",
        {QStringLiteral("-p"), QString::fromLatin1(queue), QStringLiteral("-o"),
            QString::fromLatin1(option)});
}

void PrintServer::makeUserDefault(const char *name)
{
    run("lpoptions", {QStringLiteral("-d"), QString::fromLatin1(name)});
}

void PrintServer::hang()
{
    ::kill(static_cast<pid_t>(m_server.processId()), SIGSTOP);
}

void PrintServer::wake()
{
    ::kill(static_cast<pid_t>(m_server.processId()), SIGCONT);
}

void PrintServer::run(const char *program, const QStringList &arguments)
{
    QProcess process;
    process.start(programPath(program), arguments);
    if (!process.waitForFinished() || process.exitCode() != 0)
        ADD_FAILURE() << program << ' ' << arguments.join(u' ').toStdString() << ": "
                      << process.readAllStandardError().toStdString();
}

SilentPrintServer::SilentPrintServer()
    : m_socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0))
{
    const QString path = TestHome::instance().runtime() + QStringLiteral("/silent-server");
    const sockaddr_un address = socketAddress(path);
    // The kernel takes connections on behalf of a listener; this one never looks at them.
    if (::bind(m_socket, reinterpret_cast<const sockaddr *>(&address), sizeof address) != 0
        || ::listen(m_socket, 16) != 0)
        ADD_FAILURE() << "cannot listen at " << path.toStdString();
    useServer(path);
}

SilentPrintServer::~SilentPrintServer()
{
    ::close(m_socket);
    useServer(TestHome::instance().runtime() + QStringLiteral("/no-print-server"));
}
