#include <gtest/gtest.h>

#include "support/ObjectBench.h"

namespace quendle {
namespace {

TEST(GameObjectFields, AreEmptyAtCreationAndTheHeightIsUnknown) {
  ObjectBench bench;
  GameObject object(bench.objects);
  EXPECT_EQ(object.CurrentState(), "");
  EXPECT_EQ(object.ObjDirectory(), "");
  EXPECT_EQ(object.CurrentAnimationName(), "");
  EXPECT_EQ(object.CurrentTextureXCoord(), -1);
  EXPECT_EQ(object.CurrentTextureYCoord(), 0);
  EXPECT_EQ(object.TimerID(), 0);
  EXPECT_EQ(object.DrawingSurface(), 0);
  EXPECT_EQ(object.xpos(), 0);
  EXPECT_EQ(object.ypos(), 0);
  EXPECT_EQ(object.height(), -1);
  EXPECT_EQ(object.width(), 0);
  EXPECT_TRUE(object.Visible());
  EXPECT_FALSE(object.ObjectOn());
  EXPECT_EQ(object.Parent(), nullptr);
  EXPECT_EQ(object.CurrentSoundName(), "");
  EXPECT_EQ(object.CurrentRegion(), "");
  EXPECT_EQ(object.GetDShowObj(), nullptr);
  EXPECT_EQ(object.DirectDrawingSurface(), nullptr);
  EXPECT_EQ(object.pictureHandle(), 0);
}

TEST(GameObjectFields, ThePictureHandleCanNotBeSet) {
  ObjectBench bench(DrawingPath::kWindow);
  bench.Object("door").Still(10, 10);
  TestedObject door = bench.Load("door");
  const ContextHandle handle = door->pictureHandle();
  EXPECT_NE(handle, 0);
  door->SetpictureHandle(handle + 5);
  EXPECT_EQ(door->pictureHandle(), handle);
}

TEST(GameObjectFields, CanBeSetThroughTheForwardingClass) {
  ObjectBench bench;
  bench.Object("door");
  TestedObject door = bench.Load("door");
  door->SetCurrentTextureXCoord(1);
  door->SetCurrentTextureYCoord(2);
  door->SetTimerID(0);
  door->SetDrawingSurface(4);
  door->SetPictureName("p");
  door->SetObjectName("gate");
  door->SetObjectType("key");
  door->SetVisible(false);
  door->SetObjectOn(true);
  door->Setxpos(5);
  door->Setypos(6);
  door->Setheight(7);
  door->Setwidth(8);
  EXPECT_EQ(door->Inner().CurrentTextureXCoord(), 1);
  EXPECT_EQ(door->Inner().CurrentTextureYCoord(), 2);
  EXPECT_EQ(door->Inner().DrawingSurface(), 4);
  EXPECT_EQ(door->Inner().PictureName(), "p");
  EXPECT_EQ(door->Inner().ObjectName(), "gate");
  EXPECT_EQ(door->Inner().ObjectType(), "key");
  EXPECT_FALSE(door->Inner().Visible());
  EXPECT_TRUE(door->Inner().ObjectOn());
  EXPECT_EQ(door->Inner().xpos(), 5);
  EXPECT_EQ(door->Inner().ypos(), 6);
  EXPECT_EQ(door->Inner().height(), 7);
  EXPECT_EQ(door->Inner().width(), 8);
  EXPECT_EQ(door->CurrentTextureXCoord() + door->CurrentTextureYCoord(), 3);
  EXPECT_EQ(door->xpos() + door->ypos() + door->height() + door->width(), 26);
}

TEST(GameObjectFields, AnAnimationOfAKnownNameCanNotBeAdded) {
  ObjectBench bench;
  bench.Object("door").Still(10, 10);
  TestedObject door = bench.Load("door");
  auto animation = std::make_shared<AnimationState>();
  door->AddAnimationState(animation, "more");
  EXPECT_EQ(door->QueryAnimationState("MORE"), animation);
  EXPECT_EQ(FatalOf([&] { door->AddAnimationState(animation, "STILL"); }),
            "there are two animation entries named \"STILL\"");
}

TEST(GameObjectFields, TheHeaderOfAnObjectIsTwoLines) {
  ObjectBench bench;
  GameObject object(bench.objects);
  TextReader reader("type\nname\nrest\n", "f.txt");
  object.GetObjHeader(reader);
  EXPECT_EQ(reader.ReadLine("the rest"), "rest");
}

}  // namespace
}  // namespace quendle
