#pragma once

#include <QAbstractListModel>
#include <QStringList>
#include <QTime>
#include <QVector>

namespace QMMultiMedia {

/// The list of tracks that the window shows and a run consumes: absolute paths of files.
class PlayListModel : public QAbstractListModel
{
    Q_OBJECT

public:
    /// What data() gives beside the file name (Qt::DisplayRole, Qt::EditRole).
    enum Role
    {
        LastModifiedRole = 257, ///< QDateTime, read from the disk at every call
        PathRole = 259, ///< QString, the full path as it was given
        DurationRole = 260 ///< QTime, whole seconds, found out at the first call and kept
    };

    explicit PlayListModel(QObject *parent);

    /// Replaces all tracks; the views are reset.
    void setPlayList(const QStringList &files);

    /// The paths in the order of the rows.
    QStringList playList() const;

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

    /// Takes a new path for a row (Qt::EditRole only).
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QVariant headerData(
        int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

    /// Rows outside the list are skipped; always true.
    bool removeRows(int row, int count, const QModelIndex &parent = QModelIndex()) override;
    QStringList mimeTypes() const override;

private:
    Q_DISABLE_COPY(PlayListModel)
    bool isRow(const QModelIndex &index) const;
    static QTime audioFileDuration(const QString &file);

    QStringList m_lstFiles;
    mutable QVector<QTime> m_vecDurations; ///< one a row, null until it was asked for
};

}
