#include "toolbelt/VerifyPairs.h"

namespace quendle {
namespace {

// Gives the dog's first animation a path.
Plant Path(const std::string& speed, const std::string& xs, const std::string& ys) {
  return All({Edit("dog\\doganimation.txt", "loop\nnothing", "loop\n<CurrentDirectory>\\path.txt"),
              Put("dog\\path.txt", "spline\nunused\nunused\nnoloop\nwalk\n" + speed + "\n" + xs +
                                       "\n" + ys + "\nunused\nunused\n")});
}

// The dog makes a sound of its own in that state.
Plant Bark(const std::string& state) {
  return All({Edit("dog\\dogdata.txt", "animation.txt\nnothing",
                   "animation.txt\n<CurrentDirectory>\\sounds.txt"),
              Put("dog\\sounds.txt", "bark\n\\Info\\doctor\\voice.wma\nnoloop\nunused\n"),
              Edit("dog\\dogstates.txt", state + "\nnothing", state + "\nbark")});
}

// A wave of so many seconds.
std::string Silence(int seconds) {
  return WaveOf(std::string(static_cast<std::size_t>(seconds) * 8000, '\x80'), 8000, 1, 8);
}

std::string Plain(std::uint32_t color) {
  const std::vector<std::uint32_t> pixels(192 * 64, color);
  return WriteBitmapFile(192, 64, pixels.data());
}

}  // namespace

std::vector<CheckPair> PartPairs() {
  return {
      {"V301", "Info\\doctor\\doctorstates.txt:8",
       Edit("doctor\\doctorstates.txt", "voice", "voise"),
       Edit("doctor\\doctorstates.txt", "voice", "Voice")},
      {"V302", "Info\\dog\\dogstates.txt:3", Edit("dog\\dogstates.txt", "sit", "sitt"),
       Edit("dog\\dogstates.txt", "sit", "SIT")},
      {"V303", "Info\\dog\\dogstates.txt:4", Edit("dog\\dogstates.txt", "treat", "treet"),
       Edit("dog\\dogstates.txt", "treat", "Treat")},
      {"V304", "Info\\dog\\doganimation.txt:7",
       Edit("dog\\doganimation.txt", "sit blink", "sit blnk"),
       Edit("dog\\doganimation.txt", "sit blink", "SIT   blink")},
      {"V305", "Info\\dog\\dogframes.txt:1", Edit("dog\\dogframes.txt", "stable\n", "stable+900\n"),
       Edit("dog\\dogframes.txt", "stable\n", "stable/800\n")},
      {"V306", "Info\\dog\\dogframes.txt:10",
       Edit("dog\\dogframes.txt", "64\n0\n64\n64", "150\n0\n64\n64"),
       Edit("dog\\dogframes.txt", "64\n0\n64\n64", "128\n0\n64\n64")},
      {"V307", "Info\\dog\\doganimation.txt:8",
       Edit("dog\\doganimation.txt", "sit blink\n", "sit blink\n\n"),
       Edit("dog\\doganimation.txt", "sit blink\n", "sit blink\nblink\n")},
      {"V308", "Info\\dog\\dogframes.txt:10", Edit("dog\\dogframes.txt", "blink\n", "Sit\n"),
       Append("dog\\dogframes.txt", "sit2\nnothing\nstable\nstable\n0\n0\n9\n9\nunused\n")},
      {"V309", "Info\\dog\\doganimation.txt:3",
       Edit("dog\\dogframes.txt", "stable\n", "stable+5\n"),
       All({Edit("dog\\dogframes.txt", "stable\n", "stable+5\n"),
            Edit("dog\\dogframes.txt", "nothing\nstable\n", "nothing\n200\n")})},
      {"V310", "Info\\dog\\dogframes.txt:3", Edit("dog\\dogframes.txt", "stable\n", "stable + 1\n"),
       Edit("dog\\dogframes.txt", "stable\n", "stable/1\n")},
      {"V311", "Info\\dogroom\\dogroomchildren.txt:2",
       Edit("dogroom\\dogroomchildren.txt", "ypos_100", "ypos_100 state_sad"),
       Edit("dogroom\\dogroomchildren.txt", "ypos_100", "ypos_100 state_better1")},
      {"V312", "Info\\dog\\dogstates.txt:25",
       Append("dog\\dogstates.txt", "asleep\nnothing\nsit\nnothing\nunused\nunused\n"),
       All({Append("dog\\dogstates.txt", "asleep\nnothing\nsit\nnothing\nunused\nunused\n"),
            Edit("dog\\wellscript.txt", "mtp cs_<objectname>room",
                 "mtp toobj_<objectname>_changestate_asleep")})},
      {"V313", "Info\\dog\\path.txt:0", Path("0", "1 2", "1 2"), Path("5", "1 2", "1 2")},
      {"V313", "Info\\dog\\path.txt:0", Path("5", "1", "1"), Path("5", "0 1", "0 1")},
      {"V313", "Info\\dog\\path.txt:0", Path("5", "1 -2", "1 2"), Path("5", "9 2", "1 2")},
      {"V314", "Info\\dog\\dogregions.txt:1",
       Edit("dog\\dogregions.txt", "0\n0\n30\n30", "70\n0\n90\n30"),
       Edit("dog\\dogregions.txt", "0\n0\n30\n30", "60\n0\n90\n30")},
      {"V401", "Info\\doctor\\doctorsounds.txt:2", Remove("doctor\\voice.wma"),
       Edit("doctor\\doctorsounds.txt", "voice.wav", "voice.wma")},
      {"V402", "Info\\doctor\\voice.wma:0", Put("doctor\\voice.wma", "no sound at all"),
       [](VerifyClinic& clinic) { clinic.Append("\\Info\\doctor\\voice.wma", "  "); }},
      {"V403", "Info\\doctor\\doctorstates.txt:7",
       Edit("doctor\\doctoranimation.txt", "talk\n100\nloop", "talk\n100\nnonloop"),
       All({Edit("doctor\\doctoranimation.txt", "talk\n100\nloop", "talk\n100\nnonloop"),
            Edit("doctor\\doctorstates.txt", "default\nnothing", "default\nunchanged")})},
      {"V403", "Info\\doctor\\doctorstates.txt:7",
       Edit("doctor\\doctoranimation.txt", "talk stand", "talk"),
       Edit("doctor\\doctoranimation.txt", "talk stand", "talk stand\ntalk")},
      {"V404", "Info\\dog\\dogstates.txt:1", Bark("better1"),
       All({Bark("better1"), Edit("dog\\doganimation.txt", "\nloop\n", "\nnonloop\n")})},
      {"V405", "Info\\doctor\\doctorstates.txt:2",
       Edit("doctor\\doctorstates.txt", "default\nnothing", "default\nvoice"),
       Edit("doctor\\doctorstates.txt", "default\nnothing", "default\nunchanged")},
      {"V406", "Info\\dog\\dogstates.txt:14",
       All({Edit("dog\\dogstates.txt", "better1", "default-highlight"), Bark("default-highlight")}),
       Edit("dog\\dogstates.txt", "better1", "default-highlight")},
      {"V407", "Info\\dog\\treatscript.txt:3",
       All({Bark("default-owww"),
            Edit("dog\\treatscript.txt", "change better1", "runsound bark\nmtp cs_hall")}),
       All({Bark("default-owww"),
            Edit("dog\\treatscript.txt", "change better1",
                 "runsound bark\nelseif action = handmouseclick\nmtp cs_hall")})},
      {"V408", "Info\\doodle.wma:0", Put("doodle.wma", Silence(176)),
       Put("doodle.wma", Silence(174))},
      {"V501", "Info\\dog\\dog.bmp:0", Put("dog\\dog.bmp", "BM and nothing else"),
       Put("dog\\dog.bmp", Plain(0x102030))},
      {"V502", "Info\\tools\\tool.bmp:0", Put("tools\\tool.bmp", Plain(0xC8C8C7)),
       Put("tools\\tool.bmp", Plain(0xC8C8C8))},
      {"V502", "Info\\dog\\dog.bmp:0", Put("dog\\dog.bmp", Plain(0xC9C8C8)),
       Put("dog\\dog.bmp", Plain(0xF0E0D0))},
      {"V502", "Info\\dog\\dog.bmp:0", Put("dog\\dog.bmp", Plain(0xFF00FF)),
       Put("dog\\dog.bmp", Plain(0xC8C8C8))},
      {"V503", "Info\\hall\\hall.txt:2", Edit("hall\\hallframes.txt", "800\n600", "800\n500"),
       Edit("hall\\hallframes.txt", "0\n0\n0\n0", "stable\nstable\n0\n0")},
  };
}

}  // namespace quendle
