#include "platform/Form.h"

#include <gtest/gtest.h>

namespace quendle {
namespace {

Form FormWithPictures() {
  Form form;
  for (int index : {0, 1}) {
    Control control;
    control.name = "Picture1";
    control.index = index;
    form.controls.push_back(control);
  }
  return form;
}

TEST(Form, FindsAControlByNameInAnyCaseAndIndex) {
  Form form = FormWithPictures();
  EXPECT_EQ(form.Find("Picture1"), &form.controls[0]);
  EXPECT_EQ(form.Find("PICTURE1", 1), &form.controls[1]);
}

TEST(Form, FindsNothingForAnotherNameOrIndex) {
  Form form = FormWithPictures();
  EXPECT_EQ(form.Find("Picture1", 2), nullptr);
  EXPECT_EQ(form.Find("Picture"), nullptr);
  EXPECT_EQ(form.Find(""), nullptr);
}

}  // namespace
}  // namespace quendle
