#pragma once

#include <QByteArray>
#include <QString>

#include <optional>
#include <sys/types.h>

// A file written whole and put in place by rename, so that readers see the old content or the
// new, never a mix, and a link at the path is replaced itself, never written through.
namespace replacefile {

// `content` under a temporary name beside `path` (".{file name}.quivra-XXXXXX") with `mode`,
// flushed to disk; its path goes to `temporary`. An error text naming `name` on failure, when
// nothing is left behind.
std::optional<QString> writeTemporary(const QString &path, const QString &name,
                                      const QByteArray &content, mode_t mode,
                                      QByteArray *temporary);

// Renames `temporary` over `path`, then flushes the folder; removes `temporary` on failure.
std::optional<QString> commit(const QByteArray &temporary, const QString &path,
                              const QString &name);

// Both steps.
std::optional<QString> replace(const QString &path, const QString &name, const QByteArray &content,
                               mode_t mode);

} // namespace replacefile
