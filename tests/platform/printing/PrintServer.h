// SPDX-License-Identifier: MIT
// PrintServer is a real CUPS server for one test: on its own socket, with its own configuration, without
// network. CUPS_SERVER names it as long as it exists.
// Thread: main.  Owner: the test.
#pragma once

#include <QByteArray>
#include <QProcess>
#include <QString>

/// A queue's printer description with Letter, A4 (its default), A5, Legal and OddCard of 300 x 500 points, in
/// this order. Margins: 12 points on top, 9 left, 10 at the bottom, 11 right; of OddCard 50, 20, 30 and 40.
extern const QByteArray oddPrinterDescription;

class PrintServer {
public:
    /// Whether the programs are installed: cups-daemon, cups-client and cups of Debian. Tests skip without
    /// them.
    static bool isInstalled();

    /// Starts the server and waits until it answers; fails the test if it does not.
    PrintServer();
    PrintServer(const PrintServer &) = delete;
    PrintServer &operator=(const PrintServer &) = delete;
    /// Kills the server and waits until it has exited.
    ~PrintServer();

    /// Adds a queue that discards its jobs; without a description, a raw one. It does not become the default.
    void addQueue(const char *name, const QByteArray &description = oddPrinterDescription);
    void removeQueue(const char *name);
    // The default queue of every user, or of this user alone.
    void makeDefault(const char *name);
    void makeUserDefault(const char *name);
    /// An option of the queue for every user ("media-default=A5"), or for this user alone ("media=A5").
    void setServerOption(const char *queue, const char *option);
    void setUserOption(const char *queue, const char *option);

    /// Stops the server: it accepts connections but does not answer until it is resumed.
    void hang();
    void wake();

private:
    void run(const char *program, const QStringList &arguments);

    QString m_folder;
    QProcess m_server;
};

/// A server that accepts connections and never sends anything. CUPS_SERVER names it as long as it exists.
class SilentPrintServer {
public:
    SilentPrintServer();
    SilentPrintServer(const SilentPrintServer &) = delete;
    SilentPrintServer &operator=(const SilentPrintServer &) = delete;
    /// Closes all connections, so that waiting clients fail.
    ~SilentPrintServer();

private:
    int m_socket;
};
