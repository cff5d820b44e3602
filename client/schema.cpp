#include "client/schema.h"

#include <iterator>

namespace l2fib
{

static constexpr char schema[] = {
#include "published_schema.inc" // the bytes of recording/schema/schema.json
};

std::string_view published_schema()
{
    return {schema, std::size(schema)};
}

} // namespace l2fib
