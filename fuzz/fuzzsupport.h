#pragma once

#include <QByteArray>

#include <cstddef>
#include <cstdint>

// What every target needs before its first input: an application object for the event loop and
// the JSON and text codecs, HOME and the XDG directories in a fresh temporary directory so that
// nothing under test meets the real user's files, and the app's console lines silenced.
namespace fuzzsupport {

void initialize(int *argc, char ***argv);

QByteArray bytes(const uint8_t *data, size_t size);

// Stops the run as a finding: libFuzzer saves the input that got here.
[[noreturn]] void fail(const char *what, const QByteArray &detail = {});

} // namespace fuzzsupport
