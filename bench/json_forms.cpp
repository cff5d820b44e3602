#include "bench/json_forms.h"

#include "bench/text_of.h"

#include <cstdio>

namespace l2fib
{

JsonForms::JsonForms(Capture capture) : capture_(std::move(capture))
{
    std::vector<std::uint8_t> scratch = capture_.show_data;
    tree_ = nlohmann::ordered_json::parse(text_of([&] {
        Renderer renderer({.json = true});
        stream(renderer, scratch);
    }));
}

void JsonForms::stream(Renderer &renderer, std::vector<std::uint8_t> &scratch)
{
    capture_.show_data.swap(scratch);
    renderer.show(capture_);
    renderer.flush();
    capture_.show_data.swap(scratch);
}

void JsonForms::dump() const
{
    const std::string line = tree_.dump() + '\n';
    std::fwrite(line.data(), 1, line.size(), stdout);
}

} // namespace l2fib
