#include "client/check/rules.h"

#include "client/check/across.h"
#include "client/check/facts.h"
#include "client/check/hardware_checks.h"

#include <cstdio>
#include <string>

namespace l2fib
{

static std::string text_of(const FactPlace &place)
{
    std::string text = place.path;
    text += place.bit == FactPlace::all_bits ? "" : " bit " + std::to_string(place.bit);
    return (place.is_inverted ? "not " : "") + text;
}

static const char *text_of(OfService service)
{
    switch (service) {
    case OfService::any: break;
    case OfService::vpls: return " (VPLS)";
    case OfService::other_than_vpls: return " (other than VPLS)";
    }
    return "";
}

static void print_fact(const Fact &fact)
{
    std::printf("%s: %s%s\n    %s: ", fact.object, fact.name, text_of(fact.service), text_of(fact.relation));
    for (std::size_t i = 0; i < most_places && fact.places[i].path != nullptr; ++i) {
        std::printf("%s%s", i == 0 ? "" : ", ", text_of(fact.places[i]).c_str());
    }
    std::printf("\n    %s: %s\n", text_of(fact.level), fact.meaning);
}

void print_rules()
{
    std::printf("Within an object, the places of a rule must go together. Bits are counted from the highest one of the "
                "bytes as received.\n\n");
    for (const Fact &fact : facts()) {
        print_fact(fact);
    }
    for (const HardwareCheck &check : hardware_checks()) {
        std::printf("%s: %s\n    %s\n    %s: %s\n", check.object == nullptr ? "any object" : check.object, check.name,
                    check.rule, text_of(check.level), check.meaning);
    }
    std::printf(
        "\nEverything else that the NPs of an AC, PW or bridge show must be the same on all of them, but for:\n\n");
    for (const MayDiffer &field : fields_that_may_differ()) {
        std::printf("%s%s: %s\n", field.field, field.flags == 0 ? "" : " (some)", field.why);
    }
    std::printf("\nAcross the objects of the files:\n\n");
    for (const char *rule : AcrossObjects::rules()) {
        std::printf("%s\n", rule);
    }
}

} // namespace l2fib
