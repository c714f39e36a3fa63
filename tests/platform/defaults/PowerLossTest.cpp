// SPDX-License-Identifier: MIT
// What is left of a suite when the power fails just after a setter has returned. SQLite's own file layer is
// watched: the disk keeps of each file what it had when it was last synchronised, and of its folder what was
// when the folder was. A test cannot show what a real disk does with its own cache.
#include "platform/defaults/UserDefaults.h"

#include "tests/harness/QuillbayTest.h"

#include <QDir>
#include <QFile>

#include <sqlite3.h>

#include <map>

namespace {

/// The files after a loss of power, by their paths.
class WatchedDisk {
public:
    static WatchedDisk &instance()
    {
        static WatchedDisk disk;
        return disk;
    }

    void begin()
    {
        m_files.clear();
        sqlite3_vfs_register(&m_layer, 1);
    }
    void end() { sqlite3_vfs_register(m_real, 1); }

    /// Restores the folder to the state on disk.
    void losePower(const QString &folder) const
    {
        ASSERT_TRUE(QDir(folder).removeRecursively());
        ASSERT_TRUE(QDir().mkpath(folder));
        for (const auto &[path, contents] : m_files) {
            QFile file(QFile::decodeName(path));
            ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(contents) == contents.size());
        }
    }

private:
    WatchedDisk()
        : m_real(sqlite3_vfs_find(nullptr))
        , m_layer(*m_real)
    {
        m_layer.zName = "watched";
        m_layer.xOpen = [](sqlite3_vfs *, const char *name, sqlite3_file *file, int flags, int *openedWith) {
            return instance().open(name, file, flags, openedWith);
        };
        m_layer.xDelete = [](sqlite3_vfs *, const char *name, int synchronisesFolder) {
            return instance().remove(name, synchronisesFolder != 0);
        };
    }

    int open(const char *name, sqlite3_file *file, int flags, int *openedWith)
    {
        const int code = m_real->xOpen(m_real, name, file, flags, openedWith);
        if (code != SQLITE_OK || !file->pMethods || !name)
            return code;
        m_paths[file] = name;
        sqlite3_io_methods &methods = m_methods.try_emplace(file->pMethods, *file->pMethods).first->second;
        m_realSync = file->pMethods->xSync == sync ? m_realSync : file->pMethods->xSync;
        methods.xSync = sync;
        file->pMethods = &methods;
        return code;
    }
    static int sync(sqlite3_file *file, int flags)
    {
        const int code = instance().m_realSync(file, flags);
        QFile contents(QFile::decodeName(instance().m_paths[file]));
        if (code == SQLITE_OK && contents.open(QIODevice::ReadOnly))
            instance().m_files[instance().m_paths[file]] = contents.readAll();
        return code;
    }
    int remove(const char *name, bool synchronisesFolder)
    {
        const int code = m_real->xDelete(m_real, name, synchronisesFolder ? 1 : 0);
        if (code == SQLITE_OK && synchronisesFolder)
            m_files.erase(name);
        return code;
    }

    sqlite3_vfs *m_real;
    sqlite3_vfs m_layer;
    int (*m_realSync)(sqlite3_file *, int) = nullptr; // the same function for every file
    std::map<const sqlite3_io_methods *, sqlite3_io_methods> m_methods;
    std::map<sqlite3_file *, QByteArray> m_paths;
    std::map<QByteArray, QByteArray> m_files; // as they are on disk
};

class PowerLossTest : public QuillbayTest {
protected:
    PowerLossTest() { WatchedDisk::instance().begin(); }
    ~PowerLossTest() override { WatchedDisk::instance().end(); }

    /// The value after the next start of the machine.
    static qint64 valueAfterPowerLoss()
    {
        WatchedDisk::instance().losePower(world().configuration() + QStringLiteral("/quillbay"));
        return UserDefaults(QStringLiteral("suite")).integerForKey(QStringLiteral("key"));
    }
};

} // namespace

TEST_F(PowerLossTest, TheFirstValueIsOnTheDiskWhenItsSetterReturns)
{
    UserDefaults defaults(QStringLiteral("suite"));
    EXPECT_TRUE(defaults.setObject(qint64{1}, QStringLiteral("key")));
    EXPECT_EQ(valueAfterPowerLoss(), 1);
}

TEST_F(PowerLossTest, EveryFurtherValueIsOnTheDiskWhenItsSetterReturns)
{
    UserDefaults defaults(QStringLiteral("suite"));
    for (int value = 1; value <= 3; ++value) {
        EXPECT_TRUE(defaults.setObject(qint64{value}, QStringLiteral("key")));
        EXPECT_EQ(valueAfterPowerLoss(), value);
    }
}
