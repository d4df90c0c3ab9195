#include "bigdigits.h"

#include <array>

namespace bigdigits {
namespace {

// Each glyph: five rows of a 3-column pattern, '#' for a block.
constexpr std::array<std::array<const char *, 5>, 12> glyphs { {
    { "###", "# #", "# #", "# #", "###" }, // 0
    { " # ", "## ", " # ", " # ", "###" }, // 1
    { "###", "  #", "###", "#  ", "###" }, // 2
    { "###", "  #", "###", "  #", "###" }, // 3
    { "# #", "# #", "###", "  #", "  #" }, // 4
    { "###", "#  ", "###", "  #", "###" }, // 5
    { "###", "#  ", "###", "# #", "###" }, // 6
    { "###", "  #", "  #", "  #", "  #" }, // 7
    { "###", "# #", "###", "# #", "###" }, // 8
    { "###", "# #", "###", "  #", "###" }, // 9
    { "   ", "   ", "   ", "   ", " # " }, // .
    { "   ", " # ", "   ", " # ", "   " }, // :
} };

int glyphIndex(QChar c)
{
    if (c.isDigit())
        return c.digitValue();
    return c == u'.' ? 10 : c == u':' ? 11 : -1;
}

} // namespace

QStringList render(const QString &text)
{
    QStringList rows(5);
    for (const QChar c : text) {
        const int index = glyphIndex(c);
        if (index < 0)
            continue;
        for (int row = 0; row < 5; ++row) {
            if (!rows[row].isEmpty())
                rows[row] += u' ';
            for (const char cell : std::string_view(glyphs[index][row]))
                rows[row] += cell == '#' ? QStringLiteral("\u2588\u2588") : QStringLiteral("  ");
        }
    }
    for (QString &row : rows) {
        while (row.endsWith(u' '))
            row.chop(1);
    }
    return rows;
}

} // namespace bigdigits
