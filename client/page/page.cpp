#include "client/page/page.h"

#include "client/check/across.h"
#include "client/page/finding_list.h"
#include "client/page/object_article.h"
#include "client/page/page_files.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <stdexcept>

namespace l2fib
{

static std::runtime_error spool_error()
{
    return std::runtime_error(std::string("temporary file: ") + std::strerror(errno));
}

/// Objects of the page that are for the same reader. They wait in a temporary file, as those with findings come first,
/// and what is found in all of them comes before any.
class Chapter
{
public:
    explicit Chapter(const char *heading) : heading_(heading) {}

    void add(ObjectArticle &article)
    {
        article.write(spool_.get());
        ++count_;
    }

    [[nodiscard]] std::size_t count() const { return count_; }

    /// The page goes to standard output.
    void write(HtmlWriter &out);

private:
    struct Close {
        void operator()(std::FILE *file) const { std::fclose(file); }
    };
    static std::FILE *open()
    {
        std::FILE *file = std::tmpfile();
        return file != nullptr ? file : throw spool_error();
    }
    void copy();

    const char *heading_;
    std::size_t count_ = 0;
    std::unique_ptr<std::FILE, Close> spool_{open()};
};

void Chapter::copy()
{
    std::FILE *spool = spool_.get();
    if (std::fflush(spool) != 0 || std::ferror(spool) != 0) {
        throw spool_error();
    }
    std::rewind(spool);
    std::array<char, 65536> piece; // NOLINT(*-member-init): it is read into
    while (const std::size_t size = std::fread(piece.data(), 1, piece.size(), spool)) {
        std::fwrite(piece.data(), 1, size, stdout);
    }
    if (std::ferror(spool) != 0) {
        throw spool_error();
    }
}

void Chapter::write(HtmlWriter &out)
{
    if (count_ != 0) {
        const HtmlElement section(out, "section");
        out.element("h2", std::string(heading_) + " (" + std::to_string(count_) + ")");
        out.end_line();
        copy();
    }
}

class Page
{
public:
    explicit Page(const PageOptions &options)
        : options_(options),
          files_(options.files, options.selection,
                 [this](Capture &capture, const CapturePlace &place) { return take(capture, place); })
    {
    }

    ExitStatus run();

private:
    bool take(Capture &capture, const CapturePlace &place);
    void write();
    void write_head();
    void write_summary();
    [[nodiscard]] std::string to_object(const std::string &place) const;
    [[nodiscard]] std::string title() const;
    [[nodiscard]] std::string verdict() const;
    [[nodiscard]] ExitStatus status() const;

    const PageOptions &options_;
    CaptureFiles files_;
    ObjectArticle article_;
    AcrossObjects across_;
    std::vector<Finding> across_findings_;
    std::vector<std::size_t> lines_; ///< of the objects, by their numbers from 1; in the order of the files
    std::vector<std::pair<std::string, std::size_t>> files_begun_; ///< each with how many objects were before it
    std::size_t disagreeing_ = 0;
    Chapter found_{"Findings"};
    Chapter unchecked_{"Could not be checked"};
    Chapter agreeing_{"Nothing found"};
    HtmlWriter out_{stdout};
};

bool Page::take(Capture &capture, const CapturePlace &place)
{
    if (files_begun_.empty() || files_begun_.back().first != place.file) {
        files_begun_.emplace_back(place.file, lines_.size());
    }
    lines_.push_back(place.line());
    article_.begin(capture, place, lines_.size());
    disagreeing_ += article_.object().disagrees() ? 1 : 0;
    if (!article_.object().unchecked.empty()) {
        unchecked_.add(article_);
        return true;
    }
    across_.add(capture, article_.xid(), article_.view(), place);
    (article_.has_findings() ? found_ : agreeing_).add(article_);
    return true;
}

std::string Page::to_object(const std::string &place) const
{
    for (std::size_t i = 0; i < files_begun_.size(); ++i) {
        const auto &[file, before] = files_begun_[i];
        const std::size_t end = i + 1 < files_begun_.size() ? files_begun_[i + 1].second : lines_.size();
        if (!place.starts_with(file + ':')) {
            continue;
        }
        const auto first = lines_.begin() + static_cast<std::ptrdiff_t>(before);
        const auto last = lines_.begin() + static_cast<std::ptrdiff_t>(end);
        const std::size_t line = std::strtoul(place.c_str() + file.size() + 1, nullptr, 10);
        const auto found = std::lower_bound(first, last, line);
        if (found != last && *found == line) {
            return "#o" + std::to_string(found - lines_.begin() + 1);
        }
    }
    return {};
}

std::string Page::title() const
{
    const std::vector<std::string> &files = options_.files;
    if (files.empty() || files == std::vector<std::string>{"-"}) {
        return "standard input";
    }
    return files.size() == 1 ? files.front() : files.front() + " and " + std::to_string(files.size() - 1) + " more";
}

std::string Page::verdict() const
{
    std::string text;
    if (disagreeing_ != 0) {
        text = std::to_string(disagreeing_) + " of " + counted(lines_.size(), "object disagrees", "objects disagree");
    } else {
        text = counted(lines_.size() - unchecked_.count(), "object agrees", "objects agree");
    }
    if (!across_findings_.empty()) {
        text += ", " + counted(across_findings_.size(), "disagreement", "disagreements") + " across objects";
    }
    if (unchecked_.count() != 0) {
        text += ", " + std::to_string(unchecked_.count()) + " could not be checked";
    }
    return text;
}

ExitStatus Page::status() const
{
    if (unchecked_.count() != 0) {
        return unusable;
    }
    return disagreeing_ + across_findings_.size() == 0 ? shown : view_failed;
}

/// Whatever show data brought onto the page, the browser runs the one script of the client, and loads nothing.
void Page::write_head()
{
    const HtmlElement head(out_, "head");
    out_.open("meta", {{"charset", "utf-8"}});
    out_.open("meta", {{"http-equiv", "Content-Security-Policy"}, {"content", page_policy()}});
    out_.open("meta", {{"name", "viewport"}, {"content", "width=device-width, initial-scale=1"}});
    out_.element("title", title() + " - l2fib-show");
    out_.embed("style", page_style());
}

void Page::write_summary()
{
    {
        const HtmlElement header(out_, "header");
        out_.element("h1", title());
        const bool is_bad = status() != shown;
        out_.element("p", verdict(), {{"class", is_bad ? "e" : "ok"}});
        const std::string choices = options_.selection.text();
        if (!choices.empty()) {
            out_.element("p", "Only " + choices);
        }
    }
    out_.end_line();
}

void Page::write()
{
    out_.doctype();
    const HtmlElement html(out_, "html", {{"lang", "en"}});
    write_head();
    const HtmlElement body(out_, "body");
    write_summary();
    {
        const HtmlElement main(out_, "main");
        if (!across_findings_.empty()) {
            const HtmlElement section(out_, "section");
            out_.element("h2", "Across objects (" + std::to_string(across_findings_.size()) + ")");
            const HtmlElement article(out_, "article");
            for (const Finding &finding : across_findings_) {
                write_finding(out_, finding, [this](const std::string &place) { return to_object(place); });
            }
        }
        for (Chapter *chapter : {&found_, &unchecked_, &agreeing_}) {
            chapter->write(out_);
        }
    }
    out_.embed("script", page_script());
}

ExitStatus Page::run()
{
    files_.read();
    across_findings_ = across_.findings();
    write();
    files_.report_no_match();
    return output_arrived() ? std::max(status(), files_.status()) : unusable;
}

ExitStatus write_page(const PageOptions &options)
{
    return Page(options).run();
}

} // namespace l2fib
