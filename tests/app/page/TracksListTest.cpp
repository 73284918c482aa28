#include "AddButtonAction.h"
#include "ConverterResources.h"
#include "ListView.h"
#include "Literals.h"
#include "MediaMaker.h"
#include "PlayListModel.h"
#include "TracksListDelegate.h"

#include <gtest/gtest.h>
#include <QDateTime>
#include <QDragEnterEvent>
#include <QFile>
#include <QMimeData>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using QMMultiMedia::PlayListModel;

namespace {

/// Counts how often the date of a file is asked for.
class CountingModel : public PlayListModel
{
public:
    CountingModel()
        : PlayListModel(nullptr)
    {
    }

    QVariant data(const QModelIndex &index, int role) const override
    {
        m_dates += role == LastModifiedRole ? 1 : 0;
        return PlayListModel::data(index, role);
    }

    mutable int m_dates = 0;
};

class TracksListTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        initConverterResources();
        m_delegate.addAction(m_button);
        m_view.setModel(&m_model);
        m_view.setItemDelegate(&m_delegate);
        m_view.setEditTriggers(QAbstractItemView::NoEditTriggers);
        m_view.setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
        m_view.viewport()->setAttribute(Qt::WA_Hover);
        m_view.setMouseTracking(true);
        m_view.setAcceptDrops(true);
        m_view.resize(420, 300);
    }

    QString file(const QString &name, const QDateTime &changed) const
    {
        const QString path = m_dir.filePath(name);
        EXPECT_TRUE(MediaMaker::writeFile(path, "x"));
        QFile opened(path);
        EXPECT_TRUE(opened.open(QIODevice::ReadWrite)
            && opened.setFileTime(changed, QFileDevice::FileModificationTime));
        return path;
    }

    void setTracks(int count)
    {
        QStringList files;
        for (int i = 0; i < count; ++i) {
            files << m_dir.filePath(u"%1.mp3"_qs.arg(i));
        }
        m_model.setPlayList(files);
    }

    /// How much greener than red the rectangle is, as a mean of its pixels.
    double greenness(const QRect &rect)
    {
        const QImage image = m_view.viewport()->grab(rect).toImage();
        double sum = 0.0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                sum += qGreen(image.pixel(x, y)) - qRed(image.pixel(x, y));
            }
        }
        return sum / (image.width() * image.height());
    }

    QTemporaryDir m_dir;
    CountingModel m_model;
    TracksListDelegate m_delegate;
    AddButtonAction *m_button = new AddButtonAction(nullptr);
    ListView m_view;
};

}

TEST_F(TracksListTest, PressesOnNoteAndButtonAreFoundToThePixel)
{
    setTracks(3);
    m_view.show();
    QSignalSpy played(&m_delegate, &TracksListDelegate::play);
    QSignalSpy opened(m_button, &AddButtonAction::triggered);
    const int width = m_view.viewport()->width();
    struct Press
    {
        QPoint point;
        int plays;
        int opens;
    };
    const int left = width - 1 - 32;
    const Press presses[] = {{{13, 13}, 1, 0}, {{44, 44}, 1, 0}, {{12, 20}, 0, 0}, {{45, 20}, 0, 0},
        {{20, 12}, 0, 0}, {{20, 45}, 0, 0}, {{left, 13}, 0, 1}, {{left + 31, 44}, 0, 1},
        {{left - 1, 20}, 0, 0}, {{left + 5, 12}, 0, 0}, {{left + 5, 45}, 0, 0}};
    for (const Press &press : presses) {
        played.clear();
        opened.clear();
        // In the second row, which begins at 55.
        QTest::mouseClick(m_view.viewport(), Qt::LeftButton, {}, press.point + QPoint(0, 55));
        EXPECT_EQ(played.size(), press.plays) << press.point.x() << "," << press.point.y();
        EXPECT_EQ(opened.size(), press.opens) << press.point.x() << "," << press.point.y();
        if (press.opens > 0 && !opened.isEmpty()) {
            EXPECT_EQ(opened.first().first().toModelIndex().row(), 1);
            EXPECT_EQ(opened.first().at(1).toPoint(), QPoint(left, 55 + 13));
        }
    }
}

TEST_F(TracksListTest, RowsAreAsWideAsTheViewportAndOnlyTheVisibleOnesAreRead)
{
    m_view.show();
    setTracks(50000);
    QFont large = m_view.font();
    large.setPixelSize(60);
    m_view.setFont(large);
    for (const int width : {420, 900, 300}) {
        m_view.resize(width, 300);
        QCoreApplication::processEvents();
        const QRect row = m_view.visualRect(m_model.index(1));
        EXPECT_EQ(row, QRect(0, 55, m_view.viewport()->width(), 55));
        EXPECT_EQ(m_view.horizontalScrollBar()->maximum(), 0);
    }
    m_view.verticalScrollBar()->setValue(20000 * 55);
    m_model.m_dates = 0;
    m_view.viewport()->grab();
    EXPECT_GE(m_model.m_dates, 5);
    EXPECT_LE(m_model.m_dates, 7);
}

TEST_F(TracksListTest, MarksFilesOfTodayAndTheRowUnderTheMouse)
{
    const QDateTime now = QDateTime::currentDateTime();
    m_model.setPlayList({file(u"a.mp3"_qs, now), file(u"b.mp3"_qs, now.addDays(-1))});
    m_view.show();
    const QRect band(13, 13, 32, 10);
    if (QDate::currentDate() == now.date()) { // not at midnight
        EXPECT_GT(greenness(band), greenness(band.translated(0, 55)) + 20);
    }
    const QRect edge(2, 57, 5, 50);
    EXPECT_LT(greenness(edge), 5);
    QTest::mouseMove(m_view.viewport(), QPoint(200, 70));
    EXPECT_TRUE(MediaMaker::waitFor([&] { return greenness(edge) > 15; }));
}

TEST_F(TracksListTest, TakesDropsOfFilesAsCopies)
{
    m_view.show();
    QMimeData text;
    text.setText(u"file:///tmp/a.mp3"_qs);
    QMimeData files;
    files.setUrls({QUrl(u"file:///tmp/a.mp3"_qs), QUrl(u"file:///tmp/b"_qs)});
    for (QMimeData *data : {&text, &files}) {
        const bool wanted = data == &files;
        QDragEnterEvent enter({9, 9}, Qt::MoveAction, data, Qt::LeftButton, {});
        enter.ignore();
        QCoreApplication::sendEvent(m_view.viewport(), &enter);
        EXPECT_EQ(enter.isAccepted(), wanted);
        QDragMoveEvent move({9, 200}, Qt::MoveAction, data, Qt::LeftButton, {});
        move.ignore();
        QCoreApplication::sendEvent(m_view.viewport(), &move);
        EXPECT_EQ(move.isAccepted(), wanted) << "over the empty list";
    }
    QSignalSpy dropped(&m_view, &ListView::dropped);
    QDropEvent drop({9, 200}, Qt::CopyAction | Qt::MoveAction, &files, Qt::LeftButton, {});
    drop.setDropAction(Qt::MoveAction);
    QCoreApplication::sendEvent(m_view.viewport(), &drop);
    ASSERT_EQ(dropped.size(), 1);
    EXPECT_EQ(dropped.first().first().value<QList<QUrl>>(), files.urls());
    EXPECT_EQ(drop.dropAction(), Qt::CopyAction);
}

TEST_F(TracksListTest, ComesToRestWhenTheLastRowIsUnderTheOverlay)
{
    QWidget overlay(&m_view);
    overlay.resize(200, 30);
    m_view.setLowerOverlay(&overlay);
    m_view.show();
    // From rows that fit by far to rows that don't; one of them ends under the overlay.
    for (int height = 180; height <= 260; height += 10) {
        m_view.resize(420, height);
        setTracks(4);
        QTest::qWait(1);
        const QSignalSpy changes(m_view.verticalScrollBar(), &QScrollBar::rangeChanged);
        for (int i = 0; i < 20; ++i) {
            QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
        }
        EXPECT_LE(changes.size(), 2) << height;
        m_view.setCurrentIndex(m_model.index(3));
        m_view.scrollTo(m_model.index(3));
        EXPECT_LE(m_view.visualRect(m_model.index(3)).bottom(), m_view.viewport()->height() - 30)
            << height;
    }
}
