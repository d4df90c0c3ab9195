#pragma once

#include <QCoreApplication>

// quivractl's words for the person at the terminal, in their language; what it prints for
// scripts (--json, the log) stays as the app wrote it.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(quivractl)
};
