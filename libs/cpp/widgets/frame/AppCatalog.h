#pragma once

#include <QString>
#include <QVector>

namespace QMWidgets {

/// One application of the catalogue.
struct AppCatalogItem
{
    /// The application's name in lower case without blanks.
    QString strKey;
    /// What the menu shows: the name and one line on it, untranslated; shown by catalogText.
    const char *pszText = nullptr;
    /// A 64 by 64 picture among the resources.
    QString strIcon;
    /// The store's identifier: "id" and digits.
    QString strId;
};

/// The maker's applications, in the order of the catalogue.
const QVector<AppCatalogItem> &appCatalog();

/// The row of a key; null if it isn't in the catalogue.
const AppCatalogItem *findInAppCatalog(const QString &strKey);

/// The translated text of a row.
QString catalogText(const AppCatalogItem &item);

} // namespace QMWidgets
