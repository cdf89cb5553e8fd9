#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include <random>
#include <string>
#include <typeinfo>
#include <vector>

#include "files/FileDataSink.h"
#include "files/FileErrors.h"
#include "files/FileReader.h"
#include "files/FileReadingLoop.h"
#include "files/FileReadingPath.h"
#include "files/FileWriter.h"
#include "files/FileWritingPath.h"
#include "files/ReadFile.h"
#include "testing/RandomBytes.h"
#include "testing/Recorders.h"
#include "testing/TemporaryDirectory.h"
#include "text/streams/StringReceiver.h"

class FileIO : public TemporaryDirectory {};

TEST_F(FileIO, OpeningRefusesWhatIsNotThere) {
    WriteText(Path("exists"), "x");
    FileWritingPath writing;
    EXPECT_THROW(writing.OpenNew(Location("exists")), FileExistsError);
    EXPECT_THROW(writing.OpenExisting(Location("missing")), FileNotFoundError);
    EXPECT_THROW(FileReadingPath(Location("missing")), FileNotFoundError);
    EXPECT_THROW(FileReadingPath{FileLocation()}, EmptyFileLocationError);
    EXPECT_THROW(FileWritingPath(FileLocation(), OpenNewFile()), EmptyFileLocationError);
    EXPECT_THROW(FileWritingPath(Location("missing/x"), OpenNewFile()), FileNotFoundError);
    EXPECT_THROW(FileWritingPath(Location("exists/x"), OpenNewFile()), DirectoryNotFoundError);
    EXPECT_THROW(FileReadingPath().Length(), FileNotOpenError);

    FileWritingPath(Location("new"), OpenNewFile());
    EXPECT_TRUE(Exists(Path("new")));
    FileWritingPath(Location("new2"), OpenExistingFileOrNewFile());
    EXPECT_TRUE(Exists(Path("new2")));
    FileWritingPath(Location("exists"), OpenNewFileOrAsNewFile());
    EXPECT_EQ("", ReadText(Path("exists")));

    // A file opened by this layer is not inherited by a child process.
    FileReadingPath reading(Location("new"));
    EXPECT_EQ(FD_CLOEXEC, ::fcntl(reading.Descriptor(), F_GETFD) & FD_CLOEXEC);
    reading.Close();
    EXPECT_FALSE(reading.IsOpen());
    reading.Close();
}

TEST_F(FileIO, KernelMessageFileIsNeverOpened) {
    for (char const* path : {"/proc/kmsg", "/PROC/KMSG", "/Proc/Kmsg/"}) {
        FileReadingPath reading;
        try {
            reading.OpenExisting(MakeFileLocation(path));
            ADD_FAILURE() << path << " was opened";
        } catch (FileIOError const& e) {
            EXPECT_EQ(typeid(FileIOError), typeid(e)) << path;
            EXPECT_EQ(0, e.GetCode());
            EXPECT_EQ(MakeFileLocation(path).LogString(), e.GetFirst());
        }
        EXPECT_FALSE(reading.IsOpen());
    }
}

// Random bytes written in random chunks through a sink come back whole through ReadFile and
// through reading loops over random ranges with random buffer sizes.
TEST_F(FileIO, RoundTripInRandomChunks) {
    std::mt19937 random(11);
    for (int round = 0; round < 20; ++round) {
        std::string const content = RandomBytes(random, random() % 20000);
        FileLocation const location = Location("data" + std::to_string(round));
        {
            FileWritingPath path(location, OpenNewFileOrAsNewFile());
            FileDataSink sink;
            sink(path, 0);
            sink.Start();
            for (std::size_t at = 0; at < content.size();) {
                std::size_t const size =
                    std::min<std::size_t>(random() % 5000, content.size() - at);
                sink.Receive(ConstData(content.data() + at, size));
                at += size;
            }
            sink.ReceiveEnd();
            EXPECT_EQ(content.size(), sink.Position());
        }
        std::string read;
        StringReceiver receiver(read);
        ReadFile(location, receiver, 0);
        ASSERT_EQ(content, read) << round;

        FileReadingPath path(location);
        EXPECT_EQ(content.size(), path.Length());
        std::vector<unsigned char> buffer(1 + random() % 3000);
        std::size_t const start = content.empty() ? 0 : random() % content.size();
        std::size_t const end = start + random() % (content.size() - start + 1);
        std::string looped;
        FileReadingLoop loop(Data(buffer.data(), buffer.size()));
        for (loop.Start(path, start, end); loop.Remaining() != 0; ++loop) {
            ASSERT_LE((*loop).Size(), buffer.size());
            looped += MakeString(*loop);
        }
        ASSERT_EQ(content.substr(start, end - start), looped);
        std::string ranged;
        StringReceiver rangedReceiver(ranged);
        ReadFile(location, rangedReceiver, start, end);
        ASSERT_EQ(content.substr(start, end - start), ranged);
    }
}

TEST_F(FileIO, ShortExactReadIsEndOfFile) {
    WriteText(Path("f"), "0123456789");
    FileReadingPath path(Location("f"));
    UnixPlatform::FileReader reader(path, 6);
    unsigned char target[8];
    EXPECT_THROW(reader >> Data(target), EndOfFileError);
    EXPECT_EQ(10u, reader.Position());
    EXPECT_EQ("6789", std::string(target, target + 4));
    EXPECT_TRUE(reader.Finished());
    unsigned char small[3];
    reader.Start(path, 2);
    reader >> Data(small);
    EXPECT_EQ("234", std::string(small, small + 3));

    // The buffer form takes a short read.
    Buffer buffer{Data(target)};
    FileReader dataReader(path, 7);
    dataReader >> buffer;
    EXPECT_EQ(3, buffer.cursor - target);
    EXPECT_TRUE(dataReader.Finished());

    // A loop asked to read past the end says so.
    unsigned char chunk[4];
    FileReadingLoop loop(Data(chunk), path, 8, 20);
    EXPECT_THROW(++loop, FileReadingLoopEndOfFileError);
}

TEST_F(FileIO, WritersArePositionedAndIndependent) {
    FileWritingPath path(Location("w"), OpenNewFile());
    FileWriter first(path, 0);
    FileWriter second(path, 10);
    second << ConstData("world");
    first << ConstData("hello");
    EXPECT_EQ(15u, path.Length());
    FileWriter tail(path, WritePositionEndOfFile());
    EXPECT_EQ(15u, tail.Position());
    tail << ConstData("!");
    path.Flush();
    std::string const text = ReadText(Path("w"));
    EXPECT_EQ(std::string("hello\0\0\0\0\0world!", 16), text);

    // The writing path reads too.
    unsigned char back[5];
    UnixPlatform::FileReader reader(path, 10);
    reader >> Data(back);
    EXPECT_EQ("world", std::string(back, back + 5));
}

TEST_F(FileIO, EmptyFileGivesStartAndEndOnly) {
    WriteText(Path("empty"), "");
    DataRecorder receiver;
    ReadFile(Location("empty"), receiver, 0);
    EXPECT_EQ(1, receiver.starts);
    EXPECT_EQ(std::vector<std::size_t>{}, receiver.chunks);
    EXPECT_EQ(1, receiver.ends);

    std::string const text(5000, 'x');
    WriteText(Path("long"), text);
    DataRecorder chunks;
    ReadFile(Location("long"), chunks, 0);
    EXPECT_EQ((std::vector<std::size_t>{2048, 2048, 904}), chunks.chunks);
    EXPECT_EQ(text, chunks.text);
}

TEST_F(FileIO, PipeIsReadAsAStream) {
    ASSERT_EQ(0, ::mkfifo(Path("fifo").c_str(), 0600));
    // Opened read-write, the writer end keeps the open for reading from blocking.
    int const writer = ::open(Path("fifo").c_str(), O_RDWR);
    ASSERT_NE(-1, writer);
    FileReadingPath path(Location("fifo"));
    EXPECT_EQ(~0ULL, path.Length());
    EXPECT_TRUE(path.Unseekable());
    ASSERT_EQ(3, ::write(writer, "abc", 3));
    UnixPlatform::FileReader reader(path, 0);
    EXPECT_TRUE(reader.Unfinished());
    EXPECT_TRUE(reader.Unfinished());  // answered from the look-ahead byte
    unsigned char target[16];
    Buffer buffer{Data(target)};
    reader >> buffer;
    EXPECT_EQ("abc", std::string(target, buffer.cursor));
    EXPECT_EQ(3u, reader.Position());

    // A loop has no known end: it takes what the stream gives and stops where it stops.
    std::string const content(5000, 'p');
    ASSERT_EQ(5000, ::write(writer, content.data(), content.size()));
    ::close(writer);
    unsigned char chunk[700];
    std::string read;
    for (FileReadingLoop loop(Data(chunk), path, 3); loop.Remaining() != 0; ++loop) {
        read += MakeString(*loop);
    }
    EXPECT_EQ(content, read);
    EXPECT_FALSE(reader.Unfinished());
}

TEST_F(FileIO, FullDeviceIsDiskFull) {
    // /dev/full answers every write with ENOSPC.
    FileWritingPath path;
    path.OpenExisting(MakeFileLocation("/dev/full"));
    FileWriter writer(path, 0);
    EXPECT_THROW(writer << ConstData("x"), FileDiskFullError);
}

// A small tmpfs of its own, so that the disk really fills.
class FileIOOnSmallFileSystem : public TemporaryDirectory {
  protected:
    void SetUp() override {
        TemporaryDirectory::SetUp();
        m_mount = Path("small");
        MakeDirectory(m_mount);
        m_mounted = ::mount("tmpfs", m_mount.c_str(), "tmpfs", 0, "size=64k") == 0;
    }
    void TearDown() override {
        if (m_mounted) {
            ::umount2(m_mount.c_str(), MNT_DETACH);
        }
        TemporaryDirectory::TearDown();
    }

    std::string m_mount;
    bool m_mounted = false;
};

TEST_F(FileIOOnSmallFileSystem, NoSpaceIsDiskFullWithPartialDataKept) {
    if (!m_mounted) {
        GTEST_SKIP() << "mounting a tmpfs needs root; FileIO.FullDeviceIsDiskFull covers ENOSPC";
    }
    FileLocation const location = MakeFileLocation((m_mount + "/big").c_str());
    FileWritingPath path(location, OpenNewFile());
    FileDataSink sink;
    sink(path, 0);
    sink.Start();
    std::string const block(16384, 'b');
    try {
        for (int i = 0; i < 64; ++i) {
            sink.Receive(block);
        }
        ADD_FAILURE() << "a 64 KiB file system took 1 MiB";
    } catch (FileDiskFullError const& e) {
        EXPECT_EQ(location.LogString(), e.GetFirst());
        EXPECT_EQ(ENOSPC, e.GetCode());
    }
    EXPECT_GT(sink.Position(), 0u);
    EXPECT_EQ(sink.Position(), path.Length());
}
