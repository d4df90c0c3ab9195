#include "commands.h"
#include "control/windowservice.h"
#include "text.h"

#include <QTextStream>

namespace commands {

int open()
{
    QTextStream err(stderr);
    switch (WindowService::askToShowPanel()) {
    case WindowService::Answer::Shown:
        return Success;
    case WindowService::Answer::Headless:
        err << Text::tr(WindowService::headlessMessage().toUtf8().constData()) << Qt::endl;
        return Failed;
    case WindowService::Answer::NoAnswer:
        break;
    }
    err << Text::tr("QuivraMac did not answer.") << Qt::endl;
    return Failed;
}

} // namespace commands
