#include "Literals.h"
#include "ScratchHome.h"

#include <gtest/gtest.h>
#include <QCoreApplication>

int main(int argc, char **argv)
{
    const ScratchHome home;
    ::testing::InitGoogleTest(&argc, argv);
    const QCoreApplication application(argc, argv);
    QCoreApplication::setOrganizationName(u"Velmora"_qs);
    QCoreApplication::setApplicationName(u"Calderin M4A"_qs);
    return RUN_ALL_TESTS();
}
