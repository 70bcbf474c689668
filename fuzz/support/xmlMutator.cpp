#include "fuzz/support/xmlMutator.h"

#include <algorithm>
#include <cstring>
#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

extern "C" size_t LLVMFuzzerMutate(uint8_t* data, size_t size, size_t maximum);

namespace {

constexpr int mostCopies = 80;

constexpr std::string_view oddTexts[] = {
    "",           "0",          "-1",   "1e308",    "-1e308",  "1e-320",    "nan",   "inf",
    "4294967294", "2147483648", "true", "false",    "#ff0000", "#12345678", "1 2",   "1e308 1e308",
    "0x10",       " ",          "\t\n", "&#x202e;", "\\0",     "%1%2",      "&#xd;", "\xf0\x9f\x9a\x80",
    "[a-z]*(",    "(a+)+$",     "a/b",  "*/*",      "local/x",
};

/// A piece of the text, from begin to before end.
struct Span
{
    size_t begin = 0;
    size_t end = 0;
    size_t size() const { return end - begin; }
};

/// Where the elements, attribute values and texts of an input are. Needs no proper XML.
struct Outline
{
    std::vector<Span> elements; // from '<' of the start tag to behind '>' of the end tag
    std::vector<Span> names;    // of attributes
    std::vector<Span> values;   // of attributes, without quotes
    std::vector<Span> texts;    // between tags

    explicit Outline(std::string_view text)
    {
        std::vector<size_t> open;
        for (size_t at = 0; at < text.size();) {
            const size_t start = text.find('<', at);
            if (start == std::string_view::npos)
                return;
            if (start > at)
                texts.push_back({at, start});
            const size_t end = text.find('>', start);
            if (end == std::string_view::npos)
                return;
            at = end + 1;
            const char first = text[start + 1];
            if (first == '/') {
                if (!open.empty()) {
                    elements.push_back({open.back(), at});
                    open.pop_back();
                }
            } else if (first != '?' && first != '!') {
                if (text[end - 1] == '/')
                    elements.push_back({start, at});
                else
                    open.push_back(start);
                addAttributes(text, {start, end});
            }
        }
    }

private:
    void addAttributes(std::string_view text, Span tag)
    {
        size_t at = text.find('=', tag.begin);
        while (at < tag.end && at + 1 < tag.end) {
            const char quote = text[at + 1];
            const size_t close = text.find(quote, at + 2);
            if ((quote != '"' && quote != '\'') || close >= tag.end)
                return;
            const size_t name = text.find_last_of(" \t\r\n", at);
            if (name != std::string_view::npos && name > tag.begin)
                names.push_back({name + 1, at});
            values.push_back({at + 2, close});
            at = text.find('=', close);
        }
    }
};

class XmlMutation
{
public:
    XmlMutation(std::string_view text, unsigned int seed) : m_text(text), m_outline(text), m_random(seed) {}

    bool hasElements() const { return !m_outline.elements.empty(); }

    std::string changed()
    {
        switch (below(9)) {
        case 0: // twice
            return withInserted(anyElement().end, std::string(pieceOf(anyElement())));
        case 1: { // many times
            const Span element = anyElement();
            return withInserted(element.end, repeated(pieceOf(element), 1 + below(mostCopies)));
        }
        case 2: // deleted
            return withReplaced(anyElement(), {});
        case 3: // one in another's place
            return withReplaced(anyElement(), std::string(pieceOf(anyElement())));
        case 4: { // one within another
            const Span element = anyElement();
            const size_t inside = m_text.find('>', element.begin) + 1;
            const bool isEmpty = inside >= 2 && m_text[inside - 2] == '/';
            return withInserted(isEmpty ? element.begin : inside, std::string(pieceOf(anyElement())));
        }
        case 5: { // nested in itself
            const Span element = anyElement();
            const std::string_view piece = pieceOf(element);
            const size_t inside = piece.find('>') + 1;
            if (piece[inside - 2] == '/')
                return std::string(m_text);
            const size_t times = 1 + below(mostCopies);
            const size_t endTag = piece.rfind('<');
            return withReplaced(element, repeated(piece.substr(0, inside), times) + std::string(piece) +
                                             repeated(piece.substr(endTag), times));
        }
        case 6:
            return withTextReplaced(m_outline.texts);
        case 7:
            if (below(4) == 0 && !m_outline.names.empty())
                return withReplaced(any(m_outline.names), std::string(pieceOf(any(m_outline.names))));
            [[fallthrough]];
        default:
            return withTextReplaced(m_outline.values);
        }
    }

private:
    size_t below(size_t count) { return std::uniform_int_distribution<size_t>(0, count - 1)(m_random); }
    Span any(const std::vector<Span>& spans) { return spans[below(spans.size())]; }
    Span anyElement() { return any(m_outline.elements); }
    std::string_view pieceOf(Span span) const { return m_text.substr(span.begin, span.size()); }

    static std::string repeated(std::string_view piece, size_t times)
    {
        std::string result;
        for (size_t i = 0; i < times; ++i)
            result += piece;
        return result;
    }

    std::string withReplaced(Span span, const std::string& by) const
    {
        std::string result(m_text);
        return result.replace(span.begin, span.size(), by);
    }
    std::string withInserted(size_t at, const std::string& piece) const { return withReplaced({at, at}, piece); }

    std::string withTextReplaced(const std::vector<Span>& spans)
    {
        if (spans.empty())
            return std::string(m_text);
        const Span span = any(spans);
        switch (below(4)) {
        case 0:
            return withReplaced(span, std::string(oddTexts[below(std::size(oddTexts))]));
        case 1: { // with libFuzzer's changes
            std::string text(pieceOf(span));
            const size_t size = text.size();
            text.resize(size + 16);
            text.resize(LLVMFuzzerMutate(reinterpret_cast<uint8_t*>(text.data()), size, text.size()));
            return withReplaced(span, text);
        }
        default: {
            const bool fromValues = m_outline.texts.empty() || (below(2) == 0 && !m_outline.values.empty());
            return withReplaced(span, std::string(pieceOf(any(fromValues ? m_outline.values : m_outline.texts))));
        }
        }
    }

    std::string_view m_text;
    Outline m_outline;
    std::minstd_rand m_random;
};

} // namespace

size_t fuzz::mutateXml(uint8_t* data, size_t size, size_t maximum, unsigned int seed)
{
    XmlMutation mutation({reinterpret_cast<const char*>(data), size}, seed);
    if (seed % 3 == 0 || !mutation.hasElements())
        return LLVMFuzzerMutate(data, size, maximum);
    const std::string changed = mutation.changed();
    if (changed.empty() || changed.size() > maximum)
        return LLVMFuzzerMutate(data, size, maximum);
    std::memcpy(data, changed.data(), changed.size());
    return changed.size();
}
