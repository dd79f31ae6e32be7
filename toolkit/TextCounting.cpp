#include "toolkit/TextBody.h"

#include <QTextBlockUserData>
#include <utility>

namespace {

/// Counts a line as long as Qt keeps this beside it: when the line goes, so does its count.
class CountedLine final : public QTextBlockUserData {
public:
    using Tally = TextDocument::Body::Tally;

    CountedLine(std::shared_ptr<Tally> tally, std::uint32_t color, bool marked)
        : tally_(std::move(tally))
        , color_(color)
        , marked_(marked)
    {
        ++tally_->beginsIn[color_];
        tally_->marked += marked_ ? 1 : 0;
    }
    ~CountedLine() override
    {
        --tally_->beginsIn[color_];
        tally_->marked -= marked_ ? 1 : 0;
    }
    CountedLine(const CountedLine&) = delete;
    CountedLine& operator=(const CountedLine&) = delete;

private:
    // Lines may outlive what counts them: a document's base goes last.
    const std::shared_ptr<Tally> tally_;
    const std::uint32_t color_;
    const bool marked_;
};

} // namespace

/// Counts the lines between two positions anew. Black lines, and those without text, need no count.
void TextDocument::Body::Count(int from, int to)
{
    for (QTextBlock block = findBlock(from); block.isValid() && block.position() <= to; block = block.next()) {
        const auto first = block.begin();
        const bool colored = !first.atEnd() && first.fragment().charFormat().hasProperty(QTextFormat::ForegroundBrush);
        const std::uint32_t color = colored ? first.fragment().charFormat().foreground().color().rgb() & 0xFFFFFF : 0;
        const bool marked = colors_.ofLine && ShowsMark(block);
        block.setUserData(colored || marked ? new CountedLine(tally_, color, marked) : nullptr);
    }
}
