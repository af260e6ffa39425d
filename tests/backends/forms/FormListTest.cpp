#include "backends/forms/FormList.h"

#include <gtest/gtest.h>

namespace quendle {
namespace {

class Nobody : public FormEvents {
 public:
  void PointerOverForm() override {}
  void PointerOver(Control&) override {}
  void Press(Control&, Point) override {}
  void Key(FormKey) override {}
  void QueryClose() override {}
};

TEST(FormList, TheFirstThatIsVisibleAndEnabledIsInView) {
  Nobody events;
  Form hidden;
  Form greyed;
  Form first;
  Form second;
  for (Form* form : {&hidden, &greyed, &first, &second}) form->visible = form->enabled = true;
  hidden.visible = false;
  greyed.enabled = false;
  FormList list;
  EXPECT_EQ(list.InView(), nullptr);
  for (Form* form : {&hidden, &greyed, &first, &second}) list.Add(*form, events);
  ASSERT_NE(list.InView(), nullptr);
  EXPECT_EQ(&list.InView()->Record(), &first);
  list.Remove(first);
  EXPECT_EQ(&list.InView()->Record(), &second);
}

}  // namespace
}  // namespace quendle
