#include "common/failure.h"

#include "platform/platform.h"

namespace l2fib
{

// The numbers that two of the messages print as their action.
constexpr int action_null_show_data = 99;
constexpr int action_wrong_objtype = 100;

const char *status_text(std::uint32_t status)
{
    const char *text = ::status_text(status);
    return text == nullptr ? "(null)" : text;
}

std::uint32_t short_data(Output &out, std::uint32_t level, std::uint64_t size, std::uint64_t needed)
{
    out.line(level, "data_size is %zd, expecting at least %zd", size, needed);
    return L2FIB_SHOW_ERR_DATA;
}

std::uint32_t null_arguments(Output &out, std::uint32_t level, const Literal &function)
{
    out.line(level, "%s: Null arguments rcvd", function);
    return L2FIB_SHOW_ERR_ARGS;
}

std::uint32_t null_show_data(Output &out, const Literal &function, std::uint32_t objtype)
{
    out.text("%s: NULL show data objtype %d action %d\n", function, objtype, action_null_show_data);
    return L2FIB_SHOW_ERR_ARGS;
}

std::uint32_t null_summary(Output &out, const Literal &function)
{
    out.text("%s: NULL show data \n", function);
    return L2FIB_SHOW_ERR_ARGS;
}

std::uint32_t wrong_summary_size(Output &out, const Literal &function, std::uint64_t size)
{
    out.text("%s: Showdata size wrong %d \n", function, static_cast<std::uint32_t>(size));
    return L2FIB_SHOW_ERR_ARGS;
}

std::uint32_t wrong_objtype(Output &out, const Literal &function, std::uint32_t objtype)
{
    out.text("%s: Wrong L2FIB objtype %d action %d", function, objtype, action_wrong_objtype);
    return 0;
}

} // namespace l2fib
