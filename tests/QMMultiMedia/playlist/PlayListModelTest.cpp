#include "PlayListModel.h"
#include "Literals.h"
#include "MediaMaker.h"

#include <gtest/gtest.h>
#include <QDateTime>
#include <QFileInfo>
#include <QSignalSpy>
#include <QTemporaryDir>

using QMMultiMedia::PlayListModel;

namespace {

QTime durationOf(const PlayListModel &model, int row)
{
    return model.index(row).data(PlayListModel::DurationRole).toTime();
}

}

TEST(PlayListModelTest, DurationsStayWithTheirTracks)
{
    const QTemporaryDir dir;
    QStringList files;
    for (int i = 1; i <= 5; ++i) {
        files << dir.filePath(u"%1.wav"_qs.arg(i));
        ASSERT_TRUE(MediaMaker::ffmpeg(
            {u"-f"_qs, u"lavfi"_qs, u"-i"_qs, u"sine=r=8000:d=%1"_qs.arg(i), files.last()}));
    }
    files << dir.filePath(u"no.wav"_qs);
    PlayListModel model(nullptr);
    model.setPlayList(files);
    EXPECT_EQ(durationOf(model, 3), QTime(0, 0, 4));
    EXPECT_EQ(durationOf(model, 4), QTime(0, 0, 5));
    EXPECT_EQ(durationOf(model, 5), QTime(0, 0, 0)) << "not playable";

    QSignalSpy removed(&model, &PlayListModel::rowsRemoved);
    EXPECT_TRUE(model.removeRows(2, 1));
    EXPECT_EQ(durationOf(model, 2), QTime(0, 0, 4));
    EXPECT_EQ(durationOf(model, 3), QTime(0, 0, 5));
    EXPECT_EQ(durationOf(model, 0), QTime(0, 0, 1));
    // Rows outside the list are skipped, also where the numbers overflow.
    EXPECT_TRUE(model.removeRows(4, std::numeric_limits<int>::max()));
    EXPECT_TRUE(model.removeRows(-2, 3));
    EXPECT_TRUE(model.removeRows(9, 1));
    EXPECT_EQ(removed.size(), 3);
    EXPECT_EQ(model.playList(), files.mid(1, 1) + files.mid(3, 2));
    EXPECT_EQ(durationOf(model, 0), QTime(0, 0, 2));

    EXPECT_TRUE(model.setData(model.index(0), files.at(4)));
    EXPECT_EQ(durationOf(model, 0), QTime(0, 0, 5));
    EXPECT_FALSE(model.setData(model.index(0), files.at(0), Qt::DisplayRole));

    QSignalSpy reset(&model, &PlayListModel::modelReset);
    model.setPlayList({});
    EXPECT_EQ(model.rowCount(), 0);
    EXPECT_EQ(reset.size(), 1);
}

TEST(PlayListModelTest, GivesTheRolesOfARow)
{
    const QTemporaryDir dir;
    const QString file = dir.filePath(u"a b.wav"_qs);
    ASSERT_TRUE(MediaMaker::writeFile(file, "x"));
    PlayListModel model(nullptr);
    model.setPlayList({file});
    const QModelIndex index = model.index(0);
    EXPECT_EQ(index.data(0), u"a b.wav"_qs);
    EXPECT_EQ(index.data(2), u"a b.wav"_qs);
    EXPECT_EQ(index.data(257).toDateTime(), QFileInfo(file).lastModified());
    EXPECT_EQ(index.data(259), file);
    for (const int role : {256, 258, 1, 3}) {
        EXPECT_FALSE(index.data(role).isValid()) << role;
    }
    EXPECT_FALSE(model.data(QModelIndex(), 259).isValid());
    EXPECT_TRUE(model.flags(index).testFlag(Qt::ItemIsDropEnabled));
    EXPECT_TRUE(model.flags(QModelIndex()).testFlag(Qt::ItemIsDropEnabled));
    EXPECT_EQ(model.mimeTypes(), QStringList {u"text/uri-list"_qs});
}
