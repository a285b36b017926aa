#include "richtext/Words.h"

#include <algorithm>
#include <iterator>

#include "richtext/RichText.h"

namespace Parlino::RichText {
namespace {

constexpr ControlWord Aligning(std::string_view name, Alignment alignment) {
  return {name, Meaning::Align, static_cast<int>(alignment)};
}

constexpr ControlWord Writing(std::string_view name, char32_t character) {
  return {name, Meaning::Character, static_cast<int>(character)};
}

constexpr ControlWord Leading(std::string_view name, Destination destination) {
  return {name, Meaning::Destination, static_cast<int>(destination)};
}

constexpr ControlWord Skipping(std::string_view name) {
  return Leading(name, Destination::Nowhere);
}

// Sorted by name. A destination that is missing here is skipped with its group if the source marks
// it as optional; those skipped below may come unmarked.
constexpr ControlWord Words[] = {
    Skipping("aftncn"),
    Skipping("aftnsep"),
    Skipping("aftnsepc"),
    Skipping("annotation"),
    Skipping("atnauthor"),
    Skipping("atnid"),
    {"b", Meaning::Bold},
    Skipping("background"),
    Skipping("bkmkend"),
    Skipping("bkmkstart"),
    {"blue", Meaning::Blue},
    {"brdrnil", Meaning::NoBorder},
    {"brdrnone", Meaning::NoBorder},
    {"brdrtbl", Meaning::NoBorder},
    Writing("bullet", 0x2022),
    {"cell", Meaning::EndCell},
    {"cellx", Meaning::CellEdge},
    {"cf", Meaning::Ink},
    {"clbrdrb", Meaning::Border},
    {"clbrdrl", Meaning::Border},
    {"clbrdrr", Meaning::Border},
    {"clbrdrt", Meaning::Border},
    {"clcbpat", Meaning::CellGround},
    {"clmrg", Meaning::CellMerged},
    Skipping("colorschememapping"),
    Leading("colortbl", Destination::Colours),
    {"column", Meaning::NewPage},
    Skipping("comment"),
    Skipping("datastore"),
    {"deff", Meaning::DefaultFont},
    Skipping("do"),
    Writing("emdash", 0x2014),
    Writing("emspace", 0x2003),
    Writing("endash", 0x2013),
    Writing("enspace", 0x2002),
    {"f", Meaning::Font},
    Skipping("falt"),
    {"fcharset", Meaning::SymbolCharset},
    {"fi", Meaning::FirstIndent},
    Skipping("filetbl"),
    Skipping("fldinst"),
    Leading("fonttbl", Destination::Fonts),
    Skipping("footer"),
    Skipping("footerf"),
    Skipping("footerl"),
    Skipping("footerr"),
    Skipping("footnote"),
    {"fs", Meaning::FontSize},
    Skipping("ftncn"),
    Skipping("ftnsep"),
    Skipping("ftnsepc"),
    Skipping("generator"),
    {"green", Meaning::Green},
    Skipping("header"),
    Skipping("headerf"),
    Skipping("headerl"),
    Skipping("headerr"),
    {"i", Meaning::Italic},
    Skipping("info"),
    {"intbl", Meaning::InTable},
    Skipping("latentstyles"),
    Writing("ldblquote", 0x201C),
    {"li", Meaning::LeftIndent},
    Writing("line", '\n'),
    Skipping("listoverridetable"),
    Skipping("listpicture"),
    Skipping("listtable"),
    Leading("listtext", Destination::Marker),
    Writing("lquote", 0x2018),
    Writing("ltrmark", 0x200E),
    Writing("nestcell", '\t'),  // tables in cells become lines of text
    Skipping("nesttableprops"),
    Skipping("nextfile"),
    Skipping("nonshppict"),
    Skipping("objclass"),
    Skipping("objdata"),
    Skipping("objname"),
    {"outlinelevel", Meaning::OutlineLevel},
    {"page", Meaning::NewPage},
    Skipping("panose"),
    {"par", Meaning::EndParagraph},
    {"pard", Meaning::NewLayout},
    Skipping("pgdsctbl"),
    Skipping("pict"),
    {"plain", Meaning::Plain},
    Skipping("pn"),
    Skipping("pnseclvl"),
    Leading("pntext", Destination::Marker),
    Skipping("private"),
    Aligning("qc", Alignment::Centre),
    Aligning("qj", Alignment::Justified),
    Aligning("ql", Alignment::Left),
    Writing("qmspace", 0x2005),
    Aligning("qr", Alignment::Right),
    Writing("rdblquote", 0x201D),
    {"red", Meaning::Red},
    Skipping("revtbl"),
    {"ri", Meaning::RightIndent},
    {"row", Meaning::EndRow},
    Writing("rquote", 0x2019),
    Skipping("rsidtbl"),
    Writing("rtlmark", 0x200F),
    {"s", Meaning::StyleNumber},
    {"sa", Meaning::SpaceAfter},
    {"sb", Meaning::SpaceBefore},
    {"sect", Meaning::EndParagraph},
    Skipping("shppict"),
    Skipping("shprslt"),
    Skipping("sn"),
    Skipping("sp"),
    Leading("stylesheet", Destination::Styles),
    Skipping("sv"),
    Writing("tab", '\t'),
    Skipping("tc"),
    Skipping("tcn"),
    Skipping("template"),
    Skipping("themedata"),
    {"trbrdrb", Meaning::Border},
    {"trbrdrh", Meaning::Border},
    {"trbrdrl", Meaning::Border},
    {"trbrdrr", Meaning::Border},
    {"trbrdrt", Meaning::Border},
    {"trbrdrv", Meaning::Border},
    {"trleft", Meaning::RowEdge},
    {"trowd", Meaning::NewRow},
    {"tx", Meaning::TabStop},
    Skipping("txe"),
    {"u", Meaning::Unicode},
    {"uc", Meaning::FallbackLength},
    {"ul", Meaning::Underline},
    {"uld", Meaning::Underline},
    {"uldash", Meaning::Underline},
    {"uldashd", Meaning::Underline},
    {"uldashdd", Meaning::Underline},
    {"uldb", Meaning::Underline},
    {"ulhair", Meaning::Underline},
    {"ulnone", Meaning::NoUnderline},
    {"ulth", Meaning::Underline},
    {"ulw", Meaning::Underline},
    {"ulwave", Meaning::Underline},
    Skipping("userprops"),
    {"v", Meaning::Hidden},
    Skipping("xe"),
    Skipping("xmlnstbl"),
    Writing("zwbo", 0x200B),
    Writing("zwj", 0x200D),
    Writing("zwnj", 0x200C),
};

constexpr bool NamedBefore(const ControlWord& one, const ControlWord& other) {
  return one.Name < other.Name;
}

static_assert(std::is_sorted(std::begin(Words), std::end(Words), NamedBefore));

}  // namespace

const ControlWord* FindWord(std::string_view name) {
  const auto* found =
      std::lower_bound(std::begin(Words), std::end(Words), ControlWord{name, {}}, NamedBefore);
  return found != std::end(Words) && found->Name == name ? found : nullptr;
}

}  // namespace Parlino::RichText
