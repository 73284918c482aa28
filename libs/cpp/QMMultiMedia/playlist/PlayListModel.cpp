#include "PlayListModel.h"

#include "Literals.h"
#include "NativeAudioTools.h"
#include <algorithm>
#include <QDateTime>
#include <QFileInfo>
#include <QUrl>

namespace QMMultiMedia {

PlayListModel::PlayListModel(QObject *parent)
    : QAbstractListModel(parent)
{
}

void PlayListModel::setPlayList(const QStringList &files)
{
    beginResetModel();
    m_vecDurations.clear();
    m_lstFiles = files;
    m_vecDurations.resize(m_lstFiles.size());
    endResetModel();
}

QStringList PlayListModel::playList() const
{
    return m_lstFiles;
}

int PlayListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_lstFiles.size();
}

/// Also an index that outlived its row is told from one of a track.
bool PlayListModel::isRow(const QModelIndex &index) const
{
    return index.isValid() && index.model() == this && index.row() < m_lstFiles.size();
}

QVariant PlayListModel::data(const QModelIndex &index, int role) const
{
    if (!isRow(index)) {
        return {};
    }
    const QString &file = m_lstFiles.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return QFileInfo(file).fileName();
    case LastModifiedRole:
        return QFileInfo(file).lastModified();
    case PathRole:
        return file;
    case DurationRole: {
        QTime &duration = m_vecDurations[index.row()];
        if (duration.isNull()) {
            duration = audioFileDuration(file);
        }
        return duration;
    }
    default:
        return {};
    }
}

bool PlayListModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!isRow(index) || role != Qt::EditRole) {
        return false;
    }
    m_lstFiles[index.row()] = value.toString();
    m_vecDurations[index.row()] = QTime();
    emit dataChanged(index, index);
    return true;
}

Qt::ItemFlags PlayListModel::flags(const QModelIndex &index) const
{
    return QAbstractListModel::flags(index) | Qt::ItemIsEditable | Qt::ItemIsDropEnabled;
}

QVariant PlayListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole) {
        return {};
    }
    return orientation == Qt::Horizontal ? u"Number"_qs : QString::number(section);
}

bool PlayListModel::removeRows(int row, int count, const QModelIndex &parent)
{
    const int first = std::max(row, 0);
    const int end = static_cast<int>(std::min<qint64>(qint64 {row} + count, m_lstFiles.size()));
    if (parent.isValid() || first >= end) {
        return true;
    }
    beginRemoveRows(parent, first, end - 1);
    m_lstFiles.erase(m_lstFiles.begin() + first, m_lstFiles.begin() + end);
    m_vecDurations.remove(first, end - first);
    endRemoveRows();
    return true;
}

QStringList PlayListModel::mimeTypes() const
{
    return {u"text/uri-list"_qs};
}

QTime PlayListModel::audioFileDuration(const QString &file)
{
    const QTime none(0, 0, 0);
    const QUrl url = QUrl::fromLocalFile(file);
    if (!NativeAudioTools::isPlayable(url)) {
        return none;
    }
    return none.addSecs(std::max(0, static_cast<int>(NativeAudioTools::duration(url))));
}

}
