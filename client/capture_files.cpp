#include "client/capture_files.h"

#include "client/show_data_file.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace l2fib
{

bool Selection::fits(const Capture &capture) const
{
    const auto fits = [](const auto &choice, const auto &actual) { return !choice || *choice == actual; };
    const bool is_wanted =
        objects.empty() || std::find(objects.begin(), objects.end(), capture.object->name) != objects.end();
    return is_wanted && fits(node, capture.node) &&
           fits(direction, capture.object->has_views() ? capture.direction->name : "") &&
           (!xid || capture.object->xid(capture.show_data) == xid);
}

std::string Selection::text() const
{
    std::string options;
    const auto add = [&options](const char *option, const std::string &argument) {
        options.append(options.empty() ? "" : " ").append(option).append(" ").append(argument);
    };
    for (const std::string &object : objects) {
        add("--object", object);
    }
    if (node) {
        add("--node", std::to_string(*node));
    }
    if (direction) {
        add("--direction", *direction);
    }
    if (xid) {
        std::array<char, sizeof "0xffffffff"> number{}; // as on the screens
        std::snprintf(number.data(), number.size(), "0x%08x", *xid);
        add("--xid", number.data());
    }
    if (failed) {
        add("--status", *failed ? "failed" : "ok");
    }
    return options;
}

void CaptureFiles::report(const std::string &what)
{
    progress_.clear();
    status_ = std::max(status_, complain(what));
}

void CaptureFiles::report(const std::vector<std::string> &messages)
{
    for (const std::string &message : messages) {
        report(message);
    }
}

void CaptureFiles::read(const std::vector<std::string> &files)
{
    if (files.empty()) {
        read_file("-");
    }
    for (const std::string &path : files) {
        read_file(path);
    }
    progress_.clear();
}

void CaptureFiles::read_file(const std::string &path)
{
    constexpr std::size_t longest_line = 2 * longest_show_data + (std::size_t{64} << 10U);
    Input input(path);
    no_captures_.emplace();
    for (std::size_t number = 1; std::ferror(stdout) == 0; ++number) {
        const auto line = input.next_line(longest_line);
        if (!line) {
            break;
        }
        read_line(*line, {path, number});
        progress_.step();
        if (no_captures_ && no_captures_->are_enough()) {
            break;
        }
    }
    if (no_captures_) {
        report(no_captures_->verdict(path));
    }
    if (!input.error().empty()) {
        report(input.error());
    }
}

void CaptureFiles::read_line(const Input::Line &line, const CapturePlace &place)
{
    if (line.is_too_long) {
        refuse(line, place, "line too long");
        return;
    }
    if (line.text.find_first_not_of(" \t\r") == std::string_view::npos) {
        return;
    }
    CaptureLine &parsed = reader_.read(line.text);
    if (!parsed.error.empty()) {
        refuse(line, place, parsed.error);
        return;
    }
    note_capture();
    if (selection_.fits(parsed.capture) && take_(parsed.capture, place)) {
        ++wanted_;
    }
}

void CaptureFiles::refuse(const Input::Line &line, const CapturePlace &place, const std::string &why)
{
    const std::string message = place.text() + ": " + why;
    if (no_captures_) {
        no_captures_->add(line.text, message);
    } else {
        report(message);
    }
}

/// The broken lines before the file's first capture are no more than that.
void CaptureFiles::note_capture()
{
    if (no_captures_) {
        report(no_captures_->messages());
        no_captures_.reset();
    }
    ++captures_;
}

/// An empty screen may be what was asked for, so it is no failure; it may also be a slip in a number.
void CaptureFiles::report_no_match() const
{
    const std::string choices = selection_.text();
    const bool is_explained = captures_ == 0 && status_ == unusable;
    if (wanted_ == 0 && !choices.empty() && !is_explained && std::ferror(stdout) == 0) {
        complain("no capture fits " + choices + " (of " + std::to_string(captures_) + ")");
    }
}

} // namespace l2fib
