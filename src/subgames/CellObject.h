#pragma once

#include <cstdint>
#include <string>

#include "object/ForwardingObject.h"

namespace quendle {

// A piece of an arcade game: the base of all cells. Its play area makes it, is its parent and owns
// it.
class CellObject : public ForwardingObject {
 public:
  explicit CellObject(ObjectWorld& world);

  // `data_file` is relative to the base directory, and names a data file or an object file, of
  // which only the path of the data file counts.
  void LoadObject(const LoadArguments& arguments) override;
  // "reset" goes back to the state "default".
  void HandleMessage(const std::string& message, GameObjectInterface* sender, bool verifying,
                     bool& result) override;
  void Describe(Inspector& inspector) const override;

  // The player's own piece or shot.
  bool IsGoodCell() const { return good_cell_; }
  void SetGoodCell(bool good) { good_cell_ = good; }
  // One tick.
  virtual void Update() = 0;
  // Runs the statement "runsound NAME".
  void RunSound(const std::string& name);

 protected:
  ObjectWorld& World() { return world_; }

 private:
  ObjectWorld& world_;
  bool good_cell_ = false;
};

}  // namespace quendle
