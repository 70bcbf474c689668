#include "zkeditor/widgets/propertyList.h"
#include "observerFixture.h"

#include <algorithm>
#include <rapidcheck.h>

namespace {

class PropertyListTest : public ObserverTest
{
};

} // namespace

// Against a plain vector: any order of taking out and adding, with the search beginning at every remembered place.
TEST_F(PropertyListTest, BehavesLikeAVector)
{
    std::vector<PropertyImpl*> pool;
    for (PartImpl* part : add("testpackage/lamp", 24))
        pool.push_back(property(part, "on"));

    EXPECT_TRUE(rc::check([&pool] {
        PropertyList list;
        std::vector<PropertyImpl*> model;
        size_t place = 0;
        const auto steps = *rc::gen::container<std::vector<size_t>>(rc::gen::inRange<size_t>(0, 2 * pool.size()));
        for (const size_t step : steps) {
            PropertyImpl* property = pool[step / 2];
            const auto found = std::find(model.begin(), model.end(), property);
            if (step % 2 == 0 && found == model.end()) {
                list.append(property, static_cast<unsigned int>(step));
                model.push_back(property);
            } else if (step % 2 == 1) {
                const auto tag = list.remove(property);
                RC_ASSERT(tag.has_value() == (found != model.end()));
                if (found != model.end()) {
                    RC_ASSERT(*tag == step - 1);
                    model.erase(found);
                }
            }
            RC_ASSERT(list.size() == model.size());
            RC_ASSERT(std::equal(list.begin(), list.end(), model.begin(), model.end()));
            if (model.empty())
                continue;
            RC_ASSERT(list.front() == model.front());
            PropertyImpl* wanted = model[step % model.size()];
            RC_ASSERT(list.findFrom(place, [wanted](PropertyImpl* each) { return each == wanted; }) == wanted);
            RC_ASSERT(list.findFrom(place, [wanted](PropertyImpl* each) { return each == wanted; }) == wanted);
            RC_ASSERT(list.findFrom(place, [](PropertyImpl*) { return false; }) == nullptr);
        }
    }));
}
