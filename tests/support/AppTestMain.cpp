#include "App.h"
#include "Literals.h"
#include "ScratchHome.h"

#include <gtest/gtest.h>
#include <QFile>

int main(int argc, char **argv)
{
    const ScratchHome home;
    ::testing::InitGoogleTest(&argc, argv);
    const QMWidgets::App application(argc, argv, u"Velmora"_qs, u"Calderin M4A"_qs);
    QCoreApplication::setApplicationVersion(u"1.0.2"_qs);
    QCoreApplication::setOrganizationDomain(u"velmora.example"_qs);
    // As the programs do: their own folder is on the search path.
    qputenv(
        "PATH", QFile::encodeName(QCoreApplication::applicationDirPath()) + ":" + qgetenv("PATH"));
    QGuiApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
