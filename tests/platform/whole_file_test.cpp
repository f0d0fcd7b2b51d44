// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/whole_file.h"

#include "support/testing.h"

#include <QIODevice>

#include <sys/resource.h>
#include <sys/stat.h>

#include <csignal>

namespace zelto {
namespace {

QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(unreadable)");
}

void create(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
}

unsigned modeOf(const QString& path) {
    struct stat status {};
    return ::stat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_mode & 0777U : 0U;
}

// A full disk as the process sees it: no file may grow over `bytes`.
class DiskOf {
  public:
    explicit DiskOf(rlim_t bytes) {
        ::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit small{bytes, before_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &small);
    }
    ~DiskOf() { ::setrlimit(RLIMIT_FSIZE, &before_); }
    DiskOf(const DiskOf&) = delete;
    DiskOf& operator=(const DiskOf&) = delete;

  private:
    rlimit before_{};
};

class WholeFileTest : public ::testing::Test {
  protected:
    QStringList entries() const {
        return QDir(folder_.path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    }

    const QTemporaryDir folder_;
    const QString new_ = folder_.filePath(QStringLiteral("new"));
    const QString old_ = folder_.filePath(QStringLiteral("old"));
};

TEST_F(WholeFileTest, ReplacesTheFileAndKeepsItsPermissions) {
    const QByteArray large(300000, 'x');
    ::umask(0027);
    ASSERT_TRUE(writeWholeFile(new_, large));
    EXPECT_EQ(contentOf(new_), large);
    EXPECT_EQ(modeOf(new_), 0640U);

    create(old_, large);
    ::chmod(QFile::encodeName(old_).constData(), 0604);
    ASSERT_TRUE(writeWholeFile(old_, "short"));
    EXPECT_EQ(contentOf(old_), "short");
    EXPECT_EQ(modeOf(old_), 0604U);
    EXPECT_EQ(entries(), QStringList({QStringLiteral("new"), QStringLiteral("old")}));
}

TEST_F(WholeFileTest, WritesNamesAsLongAsTheyMayBeAndThroughLinks) {
    const QString longest = folder_.filePath(QString(255, QLatin1Char('n')));
    ASSERT_TRUE(writeWholeFile(longest, "a"));
    EXPECT_EQ(contentOf(longest), "a");

    const QTemporaryDir elsewhere;
    for (const bool existing : {false, true}) {
        const QString target = elsewhere.filePath(existing ? QStringLiteral("old") : QStringLiteral("new"));
        if (existing) create(target, "before");
        ASSERT_TRUE(QFile::link(target, new_));
        ASSERT_TRUE(writeWholeFile(new_, "after")) << "existing " << existing;
        EXPECT_TRUE(QFileInfo(new_).isSymLink());
        EXPECT_EQ(contentOf(target), "after");
        ASSERT_TRUE(replaceFile(new_, "instead"));
        EXPECT_FALSE(QFileInfo(new_).isSymLink());
        EXPECT_EQ(contentOf(target), "after");
        EXPECT_EQ(contentOf(new_), "instead");
        QFile::remove(new_);
    }
}

TEST_F(WholeFileTest, FailingLeavesWhatWasThereAndNothingElse) {
    struct Row {
        QString path;
        qsizetype bytes;
        rlim_t disk;
        const char* reason;
    };
    create(old_, "before");
    QDir(folder_.path()).mkdir(QStringLiteral("folder"));
    const QString fifo = folder_.filePath(QStringLiteral("fifo"));
    ASSERT_EQ(::mkfifo(QFile::encodeName(fifo).constData(), 0600), 0);
    const QStringList before = entries();
    const Row rows[] = {
        {old_, 1000000, 65536, "File too large"},
        {old_, 9000, 4096, "File too large"},  // as small as a buffer
        {folder_.filePath(QStringLiteral("folder")), 10, RLIM_INFINITY, "Is a directory"},
        {folder_.filePath(QStringLiteral("missing/new")), 10, RLIM_INFINITY, "No such file or directory"},
        {QStringLiteral("/proc/zelto-test"), 10, RLIM_INFINITY, ""},
        {fifo, 10, RLIM_INFINITY, "Invalid argument"},
    };
    for (const Row& row : rows) {
        const DiskOf disk(row.disk);
        const Result<void> written = writeWholeFile(row.path, QByteArray(row.bytes, 'x'));
        ASSERT_FALSE(written) << qPrintable(row.path);
        EXPECT_EQ(written.error().code, ErrorCode::CannotWrite);
        EXPECT_EQ(written.error().path, row.path);
        for (const QString& part : {row.path, QString::fromLatin1(row.reason)})
            EXPECT_TRUE(written.error().message.contains(part)) << qPrintable(written.error().message);
        EXPECT_EQ(entries(), before);
        EXPECT_EQ(contentOf(old_), "before");
    }
    EXPECT_FALSE(QFileInfo(QStringLiteral("/dev/null")).isFile());
}

TEST_F(WholeFileTest, HasNoNameUntilItIsCommitted) {
    {
        Result<WholeFile> abandoned = WholeFile::startIn(folder_.path());
        ASSERT_TRUE(abandoned && writeAll(abandoned->device(), QByteArray(100000, 'x')));
    }
    EXPECT_EQ(entries(), QStringList());

    Result<WholeFile> file = WholeFile::startIn(folder_.path());
    ASSERT_TRUE(file);
    for (int i = 0; i < 3; ++i) ASSERT_TRUE(writeAll(file->device(), "part "));
    EXPECT_FALSE(QFile::exists(new_));
    ASSERT_TRUE(file->commit(new_));
    EXPECT_EQ(contentOf(new_), "part part part ");
    EXPECT_EQ(entries(), QStringList(QStringLiteral("new")));
}

}  // namespace
}  // namespace zelto
