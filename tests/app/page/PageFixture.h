#pragma once

#include "Literals.h"
#include "MainPage.h"

#include <gtest/gtest.h>
#include <memory>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>

class BatchDialog;
class ListView;

/// A main page on a clean settings store, with a scratch folder of sources.
class PageFixture : public ::testing::Test
{
protected:
    void SetUp() override;
    void TearDown() override;

    static void set(const QString &key, const QVariant &value);
    QString path(const QString &name) const { return m_dir.filePath(name); }
    QString touch(const QString &name) const;
    QString tone(const QString &name, double seconds) const;

    void showPage();

    /// Hands the files over as a drop does and waits for the end of the scan.
    void drop(const QStringList &files);

    QStringList tracks() const;
    QPushButton *button(const char *name) const;
    QString infoText() const;
    ListView *list() const;
    QWidget *shownMode() const;
    QString destination() const { return path(u"out/"_qs); }
    QStringList runFolders() const;

    /// The dialog of the run that is on; null without one.
    BatchDialog *dialog() const;

    /// A visible button of the dialog of the run, by its text.
    QPushButton *dialogButton(const QString &text) const;

    QTemporaryDir m_dir;
    std::unique_ptr<MainPage> m_page;
};
