// States made in one variant and used in another, over several calls of a stream.
#pragma once
#include "support/stage.h"

namespace variants {

class Streams
{
public:
    explicit Streams(const registry::Function& f) : f_(f), entry_(support::entryOf(f)) {}

    // How a stream of a few calls differs between variants, or what else is wrong with it; empty: nothing.
    std::string difference(int round);
    long long calls() const { return calls_; }

private:
    struct Step {
        registry::Answer answer;
        std::vector<std::vector<uint8_t>> outputs;
        std::string stray;
    };
    std::vector<Step> run(std::vector<registry::Arguments>& calls, const support::Variant& maker,
                          const support::Variant& user, support::Place place);
    std::string compare(const registry::Arguments& a, const Step& expected, const Step& found) const;

    const registry::Function& f_;
    registry::Entry entry_;
    support::Stage stage_;
    long long calls_ = 0;
};

} // namespace variants
