#include "run.h"
#include "sizes.h"
#include <algorithm>
#include <xmmintrin.h>

namespace bench {
namespace {

// What is updated again and again may fade into denormal numbers, whose cost is not what is asked here.
class FlushDenormals
{
public:
    explicit FlushDenormals(bool wanted)
    {
        if (wanted) _mm_setcsr(saved_ | 0x8040); // results and operands: denormal is zero
    }
    ~FlushDenormals() { _mm_setcsr(saved_); }

private:
    unsigned saved_ = _mm_getcsr();
};

constexpr Limit::Kind everyKind[] = {Limit::bandwidth,  Limit::multiplyAdd, Limit::divide,
                                     Limit::squareRoot, Limit::chain,       Limit::call};

template <class T, class U> bool contains(const std::vector<T>& all, const U& one)
{
    return std::find(all.begin(), all.end(), one) != all.end();
}

// The candidates of one group and what is known of each.
class Group
{
public:
    Group(const Case& c, Setup& setup, const Selection& selection) : setup_(setup)
    {
        int width = 16;
        for (const registry::Variant& v : registry::variants) {
            const bool hasBody = contains(c.variants, v.code);
            if (hasBody) width = v.index < 4 ? 16 : 32;
            // A variant that is asked for by name and has no body answers with that of the nearest lower one.
            if (selection.variants.empty() ? hasBody : selection.has(v.code) && !contains(c.variants, noVariant))
                addVariant(v.code, width, [v] { registry::force(v); });
        }
        if (contains(c.variants, noVariant)) addVariant(noVariant, 16, {});
        if (widths_.empty()) return;
        for (const Peer& p : setup.peers) add(p.name, withRestoring(p.batch), {});
        peers_ = setup.peers.size();
        if (setup.restoring) {
            restoring_ = static_cast<int>(all_.size());
            add("restore", repeated(setup.restoring), {});
        }
    }

    void addLimits(Level level)
    {
        firstLimit_ = all_.size();
        if (level == Level::tiny && setup_.sameCall)
            limits_.push_back({Limit::call, 0, {"", setup_.sameCall(emitter_.nothing(setup_.poppedBytes)), {}, {}}, 1});
        else
            limits_ = limitsOf(setup_, std::set<int>(widths_.begin(), widths_.end()), emitter_);
        for (const Limit& l : limits_) all_.push_back(l.candidate);
    }

    bool empty() const { return widths_.empty(); }

    double measure(const Effort& effort)
    {
        const FlushDenormals flush(updates());
        const double clock = bench::measure(all_, effort);
        for (size_t i = 0; i < limits_.size(); ++i)
            for (double& cycles : all_[firstLimit_ + i].cycles) cycles *= limits_[i].scale;
        for (size_t i = 0; restoring_ >= 0 && i < widths_.size() + peers_; ++i)
            for (size_t r = 0; r < all_[i].cycles.size(); ++r) all_[i].cycles[r] -= all_[restoring_].cycles[r];
        return clock;
    }

    void tell(Result& result) const
    {
        const double perElement = 1 / result.elements;
        for (size_t i = 0; i < widths_.size(); ++i) {
            const auto& mine = all_[i].cycles;
            VariantFigure v = {all_[i].name, median(mine) * perElement, spread(mine), 0, Limit::bandwidth};
            if (const Candidate* limit = limitFor(widths_[i], v.bound)) v.share = ratio(limit->cycles, mine);
            result.variants.push_back(v);
        }
        for (size_t i = widths_.size(); i < widths_.size() + peers_; ++i) {
            const auto& theirs = all_[i].cycles;
            result.peers.push_back({all_[i].name, median(theirs) * perElement, spread(theirs),
                                    ratio(theirs, all_[widths_.size() - 1].cycles)});
        }
        for (Limit::Kind kind : everyKind)
            for (int width : {0, 16, 32})
                if (const Candidate* l = best(kind, width, width))
                    result.limits.push_back({kind, width, median(l->cycles) * perElement});
    }

private:
    void add(const std::string& name, Batch batch, const Work& before)
    {
        all_.push_back({name,
                        std::move(batch),
                        [=, this] {
                            if (before) before();
                            setup_.memory().refillUpdated();
                        },
                        {}});
    }
    void addVariant(const std::string& code, int width, Work select)
    {
        add(code, withRestoring(setup_.batch), std::move(select));
        widths_.push_back(width);
    }
    Batch withRestoring(Batch batch) const
    {
        if (!setup_.restoring) return batch;
        return repeated([batch, restoring = setup_.restoring] {
            restoring();
            batch(1);
        });
    }
    bool updates() const
    {
        for (const Array& a : setup_.memory().arrays())
            if (a.access == Access::updated) return true;
        return false;
    }

    // The fastest form of a limit.
    const Candidate* best(Limit::Kind kind, int minWidth, int maxWidth) const
    {
        const Candidate* found = nullptr;
        for (size_t i = 0; i < limits_.size(); ++i) {
            const Candidate& c = all_[firstLimit_ + i];
            if (limits_[i].kind == kind && limits_[i].width >= minWidth && limits_[i].width <= maxWidth &&
                (!found || median(c.cycles) < median(found->cycles)))
                found = &c;
        }
        return found;
    }
    // The one that binds: the slowest of the kinds, at the vector width that the variant has.
    const Candidate* limitFor(int width, Limit::Kind& bound) const
    {
        const Candidate* binding = nullptr;
        for (Limit::Kind kind : everyKind) {
            const Candidate* l = best(kind, 0, width);
            if (!l || (binding && median(l->cycles) <= median(binding->cycles))) continue;
            binding = l;
            bound = kind;
        }
        return binding;
    }
    static double ratio(const std::vector<double>& a, const std::vector<double>& b)
    {
        std::vector<double> all;
        for (size_t r = 0; r < a.size(); ++r) all.push_back(a[r] / b[r]);
        return median(all);
    }

    Setup& setup_;
    Emitter emitter_;
    std::vector<Candidate> all_; // variants, peers, restoring, limits
    std::vector<int> widths_;    // of each variant
    std::vector<Limit> limits_;
    size_t peers_ = 0, firstLimit_ = 0;
    int restoring_ = -1;
};

} // namespace

bool Selection::has(Level level) const { return levels.empty() || contains(levels, level); }

bool Selection::has(const std::string& code) const { return variants.empty() || contains(variants, code); }

bool run(const Case& c, const Size& size, const Selection& selection, Memory& memory, Result& result)
{
    memory.reset();
    Setup setup(memory, size.n);
    c.prepare(setup);
    size_t held = 0;
    for (const Array& a : memory.arrays()) held += a.bytes;
    result = {c.name, c.family, size.level, size.n, setup.elements, static_cast<double>(memory.traffic()),
              0,      {},       {},         {}};
    if (size.level == Level::automatic) result.level = levelOf(held);
    if (!selection.has(result.level)) return false;

    attachPeers(c.name, setup);
    Group group(c, setup, selection);
    if (group.empty()) return false;
    group.addLimits(result.level);
    Effort effort = selection.effort;
    if (result.level == Level::memory)
        effort.rounds = (effort.rounds + 2) / 3; // each call takes far longer than a batch
    result.clock = group.measure(effort);
    group.tell(result);
    return true;
}

} // namespace bench
