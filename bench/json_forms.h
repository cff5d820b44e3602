// An object as JSON in two ways: written while its view runs, and printed from a tree that is there already.
#pragma once

#include "client/rendering.h"

#include <nlohmann/json.hpp>

namespace l2fib
{

class JsonForms
{
public:
    explicit JsonForms(Capture capture);

    /// Prints it as replay does, from a copy of its show data.
    void stream(Renderer &renderer, std::vector<std::uint8_t> &scratch);

    /// Prints its tree.
    void dump() const;

private:
    Capture capture_;
    nlohmann::ordered_json tree_;
};

} // namespace l2fib
