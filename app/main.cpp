#include "ui/app/CProgram.h"

#include <QApplication>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    return CProgram::Run(application);
}
