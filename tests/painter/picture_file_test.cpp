#include "painter/picture_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QImage>

#include "support/test_folder.h"

namespace zandrell {
namespace {

TEST(PictureFile, OnlyWhatCanBeAPictureIsRead) {
    const TestFolder folder;
    const DataFiles files(folder.Path());
    const QImage small(20, 10, QImage::Format_RGB32);
    ASSERT_TRUE(small.save(QString::fromStdString((folder / "small.bmp").string())));
    // A head that claims 60000 x 60000 pixels; what follows is short.
    std::string huge = folder.Read("small.bmp");
    huge.replace(18, 8, std::string("\x60\xEA\0\0\x60\xEA\0\0", 8));
    folder.Write("huge.bmp", huge);
    folder.Write("text.bmp", "no picture");
    ASSERT_EQ(::mkfifo((folder / "pipe.bmp").c_str(), 0600), 0);
    EXPECT_EQ(ReadPicture(files, "small.bmp").size(), QSize(20, 10));
    for (const char* name : {"huge.bmp", "text.bmp", "pipe.bmp", "missing.bmp"}) {
        EXPECT_TRUE(ReadPicture(files, name).isNull()) << name;
    }
}

}  // namespace
}  // namespace zandrell
