#pragma once

#include "diagnostics/ClickTrail.h"
#include "platform/AuthorSource.h"

namespace quendle {

class Application;

// What an author sees of the running game: the game is traced while it is on.
class AuthorMode : public AuthorSource {
 public:
  // `application` must outlive this object.
  explicit AuthorMode(Application& application) : application_(application) {}
  ~AuthorMode() override;
  AuthorMode(const AuthorMode&) = delete;
  AuthorMode& operator=(const AuthorMode&) = delete;

  void SwitchOn(bool on) override;
  AuthorPage PageAt(std::optional<Point> pointer) override;

 private:
  Application& application_;
  ClickTrail trail_;
  bool on_ = false;
};

}  // namespace quendle
