#pragma once

#include <iosfwd>
#include <string>
#include <utility>
#include <vector>

#include "base/Tracer.h"
#include "logic/ScreenWalk.h"

namespace quendle {

// What one visit of a screen showed.
struct ScreenVisit {
  std::string screen;
  bool by_walk = true;  // else the content itself went there
  long clicks = 0;      // messages of the walk
  long states = 0;      // changes of state of any object
  long sounds = 0;
  long taken = 0;                                           // of the clicks, by a patient
  std::vector<std::pair<std::string, long>> warnings = {};  // lines of the log, and how often
};

// Watches a walk and keeps what happened, screen by screen.
class WalkReport : public Tracer {
 public:
  // `walk` must outlive the report.
  explicit WalkReport(const ScreenWalk& walk) : walk_(walk) {
    visits_.push_back({.screen = "introscreen"});  // where every game begins
  }

  void Trace(const TraceEvent& event) override;

  const std::vector<ScreenVisit>& Visits() const { return visits_; }
  // Lines of the log that warn of something in the content, each counted once a visit.
  std::size_t Warnings() const;
  void Print(std::ostream& out) const;

 private:
  void NoteMessage(const TraceEvent& event);
  void NoteLog(const std::string& line);

  const ScreenWalk& walk_;
  std::vector<ScreenVisit> visits_;
  bool going_on_ = false;  // the walk has just sent "cs_..."
};

}  // namespace quendle
