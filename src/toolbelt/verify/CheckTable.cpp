#include "toolbelt/verify/CheckTable.h"

#include <array>

#include "base/Text.h"

namespace quendle {
namespace {

using enum Severity;

constexpr auto kRows = std::to_array<CheckRow>({
    {Check::kUnreadable, "V001", kError, "a file can't be read",
     "The reader of the game itself stops here: the game would end with this message.",
     "Write what the message expects; the page of the format shows an example."},
    {Check::kSideListLine, "V002", kError, "a side list line that isn't whole",
     "A line of the side list lacks its reason, or its first word is no code of a check.",
     "Write CODE PATH REASON; `quendle verify --codes` lists the codes."},
    {Check::kSideListIdle, "V003", kWarning, "a side list line that silences nothing",
     "What it silenced has been mended, or the path doesn't fit.",
     "Take the line out, or mend its path."},
    {Check::kMissingFile, "V101", kError, "a file is missing",
     "Something names a file that isn't there. The game ends when it comes to that place.",
     "Mend the path, or add the file."},
    {Check::kUnusedFile, "V102", kWarning, "a file that nothing names",
     "No list, object or script leads to it.", "Name it where it belongs, or delete it."},
    {Check::kWrongCase, "V103", kNote, "a path in other letters than the file",
     "Capital and small letters differ. The game finds the file; tools that look for the path "
     "may not.",
     "Write the path as the file is called."},
    {Check::kCaseTwins, "V104", kError, "two files that differ only in case",
     "The game takes one of them, whatever the path says.", "Rename one."},
    {Check::kTab, "V105", kWarning, "a tab in a line",
     "Words are parted by blanks alone: a tab is a letter like any other.", "Write blanks."},
    {Check::kUtf8, "V106", kWarning, "letters in UTF-8",
     "Text is read as Windows-1252: each such letter becomes two or three others.",
     "Save the file as Windows-1252."},
    {Check::kOuterBlank, "V107", kWarning, "blanks at the end of a name or a path",
     "They belong to it, so nothing else means the same.", "Take the blanks away."},
    {Check::kVariantMissing, "V108", kError, "a script variant is missing",
     "Each start copies the variant of its difficulty for every treatment of its edition. "
     "Without it that start fails.",
     "Add `NAMENormalMode.txt` and `NAMESafeMode.txt`."},
    {Check::kOddDirective, "V109", kWarning, "a word that is no directive",
     "Directives are `xpos_N`, `ypos_N`, `visible_on`, `visible_off`, `state_NAME`, "
     "`runstate_NAME` and `depth_TEXT`; any other word is passed over.",
     "Mend the word."},
    {Check::kOddLoopWord, "V110", kWarning, "a loop word that nearly says loop",
     "Every word but `loop` means no loop.", "Write `loop`, or `nonloop`."},
    {Check::kUnknownType, "V201", kError, "an unknown type word",
     "No class goes by that word, and the game ends when the object is loaded.", "Mend the word."},
    {Check::kNoFirstState, "V202", kError, "an object without a first state",
     "It has no state `default` and no directive names another: the game ends when it is "
     "turned on.",
     "Add a state `default`, or `state_NAME` to its line."},
    {Check::kTwoOfOneName, "V203", kError, "two of one name",
     "Names in a list are compared without case, and a second one ends the game.", "Rename one."},
    {Check::kUnknownGlobal, "V204", kWarning, "an unknown global object",
     "A child line that names it is passed over.",
     "Mend the name, or add the object to `globalgameobjects.txt`."},
    {Check::kGlobalTooLate, "V205", kWarning, "a global object stands too low in its list",
     "Objects are loaded in the order of the list; one that names a later one as its child "
     "goes without it.",
     "Move the child above."},
    {Check::kCircle, "V206", kError, "an object that holds itself", "Loading it would never end.",
     "Take the child out of one of the lists."},
    {Check::kNoFixedScreen, "V207", kError, "a screen that the game needs",
     "The game turns on `introscreen`, `tools` and `cursors` at its start.",
     "Add it to `screens.txt`."},
    {Check::kNoHand, "V208", kWarning, "there is no hand",
     "The game begins with the pointer `handcursor`, a global object.",
     "Add it to `globalgameobjects.txt`."},
    {Check::kPlacementWins, "V209", kWarning, "a frame overrides where the list puts an object",
     "A placement of 0 or more in the first frame shown wins over `xpos` and `ypos` as soon as "
     "the object is turned on.",
     "Write `stable` in the frame, or the place there."},
    {Check::kPlayAreaPlace, "V210", kWarning, "a play area that isn't at 0,0",
     "Its cells are hit at twice its distance.", "Put it at 0,0 and place the cells."},
    {Check::kMenuChildren, "V211", kWarning, "a menu with children",
     "A menu shows itself only: the children of its list are made and dropped.",
     "Put them beside the menu."},
    {Check::kBoard, "V212", kError, "a game that can't be laid out",
     "A board has 3 tiles in a row and a state for each of its 8 tiles; the names of more than "
     "11 kinds of enemies collide.",
     "Mend the board, or shorten the list."},
    {Check::kTooDeep, "V213", kError, "objects too deep inside one another",
     "The game ends when more than 60 objects stand inside one another.",
     "Put some of them beside each other."},
    {Check::kTooMany, "V214", kError, "too many objects in one tree",
     "Lists that several objects share are read for each of them, and the game ends when a load "
     "makes too many objects.",
     "Name the list once."},
    {Check::kUnknownSound, "V301", kError, "a state with an unknown sound",
     "The game ends when the state is entered.",
     "Mend the name, or add the sound to the sound file."},
    {Check::kUnknownAnimation, "V302", kError, "a state with an unknown animation",
     "The game ends when the state is entered.", "Mend the name, or add the animation."},
    {Check::kUnknownScript, "V303", kWarning, "a state with an unknown script",
     "No event does anything in that state.",
     "Mend the name, add the script to the list, or write `nothing`."},
    {Check::kUnknownFrame, "V304", kError, "an animation with an unknown frame",
     "The game ends when the frame is to be shown.", "Mend the name, or add the frame."},
    {Check::kFrameRange, "V305", kWarning, "numbers out of the range of a frame",
     "Placements and draw sizes lie within 800 by 600, source sizes between 0 and that.",
     "Mend the number."},
    {Check::kFrameOutside, "V306", kWarning, "a rectangle outside its picture",
     "What lies outside isn't drawn.", "Mend the rectangle, or the picture."},
    {Check::kEmptySequence, "V307", kError, "a blank line among frame names",
     "The game ends when the animation is shown.", "Take the line out."},
    {Check::kTwoFrames, "V308", kWarning, "two frames of one name",
     "The last one counts everywhere.", "Rename one."},
    {Check::kDrift, "V309", kWarning, "a walk that doesn't come back",
     "A looping animation moves its object on and on: beyond 32767 the game ends.",
     "Let a frame with a number bring it back."},
    {Check::kStepOfOne, "V310", kWarning, "a step of one",
     "`stable+1` and `-1` are the code for standing still.",
     "Write `stable`, or a step of 2 or more."},
    {Check::kUnknownFirstState, "V311", kWarning, "a directive with an unknown state",
     "The object stays in the state where it is; without one the game ends.", "Mend the name."},
    {Check::kIdleState, "V312", kNote, "a state that is never entered",
     "No directive, statement or message leads to it.", "Lead to it, or take it out."},
    {Check::kPath, "V313", kWarning, "a path that goes wrong",
     "A path needs a speed of 1 or more, two points or more, a y for each x, and points on the "
     "screen.",
     "Mend the directive file."},
    {Check::kRegionOutside, "V314", kWarning, "a region outside its frame", "It is never hit.",
     "Mend its numbers."},
    {Check::kSoundMissing, "V401", kWarning, "a sound without its file",
     "It is silent, and a state that speaks it returns at once.",
     "Add the file, or mend the path."},
    {Check::kSoundDamaged, "V402", kWarning, "a sound that can't be decoded", "It is silent.",
     "Encode it anew: Windows Media Audio 1 or 2, or a plain wave."},
    {Check::kSpeechCut, "V403", kWarning, "a passing state that can't speak",
     "A passing state lasts until its sound is silent only if its animation has two frames or "
     "more and says `loop`: otherwise it never returns, or it cuts the sound off.",
     "Give the state an animation of two frames that loops."},
    {Check::kLoopStops, "V404", kWarning, "a looping animation of an object that makes sounds",
     "No sound repeats, and once it is silent every looping animation of its object stops.",
     "Keep the object mute and let another one make the sound."},
    {Check::kGreeting, "V405", kWarning, "the doctor's first state has a sound",
     "He speaks while he is off too: it would be heard at each load of a screen that names him.",
     "Write `nothing` as the sound of `default`."},
    {Check::kHoverSound, "V406", kWarning, "a state under the pointer has a sound",
     "The state is entered at each move of the mouse, and its sound begins anew each time.",
     "Let the click make the sound."},
    {Check::kSoundLeaves, "V407", kWarning, "a sound is cut by a change of screen",
     "What leaves a screen falls silent, so a sound begun just before isn't heard.",
     "Let an object of the screen `cursors` make it."},
    {Check::kMusicLong, "V408", kNote, "music that is cut",
     "The music is begun anew every 175 seconds.",
     "Make it a little shorter, and let it die away."},
    {Check::kPictureDamaged, "V501", kError, "a picture that can't be read",
     "The game ends when its object is loaded.", "Make it anew; `quendle picture` does."},
    {Check::kKeyColour, "V502", kWarning, "a ground that isn't the key colour",
     "Only the colour 200,200,200 is left out when a picture is drawn; the window path takes "
     "the colour from the top left of `tool.bmp`.",
     "Make the picture with `quendle picture`."},
    {Check::kNotCovered, "V503", kWarning, "a screen that doesn't cover the frame",
     "Nothing clears the last picture: what a screen leaves free shows what was there.",
     "Give its first state a frame of 800 by 600 at 0,0."},
    {Check::kAccidentalEnd, "V601", kError, "a block that is closed by accident",
     "Block words are found by their letters: a line that holds \"end\" closes a block.",
     "Use another word, such as `pal` for `friend`."},
    {Check::kAccidentalElse, "V602", kError, "a branch that is opened by accident",
     "A line that holds \"else\" ends a branch and begins another.", "Use another word."},
    {Check::kNeverRead, "V603", kWarning, "lines behind the end of a script",
     "A script is its first block; the rest is never read.", "Take them out, or move the `end`."},
    {Check::kNoStatement, "V604", kWarning, "a line that does nothing",
     "A statement begins with `mtp`, `change`, `runsound` or `runstate`, a choice with `if` in "
     "small letters.",
     "Mend its first word."},
    {Check::kOneWord, "V605", kError, "a statement without its second word",
     "The game ends when it runs.", "Add the word."},
    {Check::kCondition, "V606", kError, "a condition that can't be tested",
     "A condition is `action = PATTERN`: three words, of which the first is `action`. The game "
     "ends when it is tested.",
     "Mend the condition."},
    {Check::kInnerStar, "V607", kWarning, "a star inside a pattern",
     "A star works at one end of a pattern only: `a*b` is `ab*`.", "Move the star to an end."},
    {Check::kHiddenBranch, "V608", kWarning, "a branch that is never reached",
     "A branch above takes all that it would take.", "Move it up."},
    {Check::kDeadPattern, "V609", kWarning, "a pattern for an action that never comes",
     "No event, message, pointer or region makes such an action.",
     "Mend the pattern, or send the action."},
    {Check::kUnknownState, "V610", kWarning, "a statement with an unknown state",
     "The object stays in the state where it is.", "Mend the name, or add the state."},
    {Check::kUnknownSoundRun, "V611", kError, "a statement with an unknown sound",
     "The game ends when it runs.", "Mend the name, or add the sound."},
    {Check::kSubscript, "V612", kWarning, "an inclusion that isn't one",
     "A line that holds \"subscript\" is taken for an inclusion; within a file that is "
     "included itself it is nothing.",
     "Include from the outer script, and keep the letters out of other lines."},
    {Check::kNoTaker, "V701", kWarning, "a message that nothing takes",
     "Its verb is none of an object, a screen or the game.", "Mend the verb."},
    {Check::kMissingWord, "V702", kError, "a message that lacks a word",
     "The game ends when it is sent.", "Add the word."},
    {Check::kNoSuchObject, "V703", kWarning, "a message to an object that isn't there",
     "Nothing takes it, and nothing is said.", "Mend the name."},
    {Check::kNoSuchType, "V704", kWarning, "a message to a type that isn't there",
     "No child has that type.", "Mend the type word."},
    {Check::kNoSuchScreen, "V705", kError, "a message with an unknown screen",
     "The game ends when it is sent.", "Mend the name, or add the screen to `screens.txt`."},
    {Check::kNoSuchGlobal, "V706", kWarning, "a message with an unknown global object",
     "A pointer that isn't there is no pointer, an object that isn't there isn't added.",
     "Mend the name, or add the object to `globalgameobjects.txt`."},
    {Check::kNoSuchScript, "V707", kWarning, "a message with an unknown script", "Nothing runs.",
     "Mend the name, or add the script to the object's list."},
    {Check::kMessageState, "V708", kWarning, "a message with an unknown state",
     "The object stays in the state where it is.", "Mend the name, or add the state."},
    {Check::kEndlessMessage, "V709", kError, "a message that goes round in circles",
     "A screen hands messages with `subgame` up, a game those with `won`, `lost` or `done`, "
     "and the game itself hands `toobj` down again.",
     "Rename the object or the state that it names."},
    {Check::kOwnEvent, "V710", kError, "an event that sends itself",
     "A script answers it by sending it again, itself or through others. It goes round in circles "
     "until the game ends.",
     "Change the state before it is sent, or send another action."},
    {Check::kFarEvent, "V711", kError, "an event that brings too much about",
     "Its answers send more than one event each, or each one further, beyond what the game allows "
     "in one event.",
     "Send what follows once, to the one object that is meant."},
    {Check::kCaughtWord, "V801", kWarning, "a name that is caught by a word in it",
     "Messages and block words are found by their letters: `tool`, `subgame`, `won`, `lost`, "
     "`done`, `end`, `else`.",
     "Use another name."},
    {Check::kUnderscore, "V802", kWarning, "an underscore in a name",
     "Messages are parted there: nothing can address it.", "Take the underscore out."},
    {Check::kInnerBlank, "V803", kWarning, "a blank in a name",
     "Lines and statements are parted at blanks: nothing can name it.", "Take the blank out."},
    {Check::kUnreachable, "V804", kWarning, "a screen that can't be reached",
     "No message that play can send leads there from `introscreen`.",
     "Send `cs_NAME` from somewhere."},
    {Check::kNoPatient, "V805", kWarning, "a patient's room without a patient",
     "A screen whose name holds none of `empty`, `hall`, `elevator` and `screen` is a "
     "patient's room: the doctor explains patients there.",
     "Put `screen` into its name."},
    {Check::kNoBar, "V806", kWarning, "a patient without the tool bar",
     "The bar stands only in screens whose name holds `hall` or `room`, and a game gives the "
     "tool back only there.",
     "Put `room` into its name."},
    {Check::kNotSaved, "V807", kWarning, "a screen that isn't saved",
     "Screens whose name holds `tutorial`, `cursors`, `square` or `shooter` are left out of "
     "the saved game.",
     "Use another name."},
    {Check::kBarOverGame, "V808", kWarning, "an arcade game under the tool bar",
     "A name that holds `hall` or `room` shows the bar, and the game can't give the tool back.",
     "Put `screen` into its name instead."},
    {Check::kOwwwTwin, "V901", kWarning, "a patient's state without its twin",
     "Each state with `default` or `better` in its name needs a twin, `-owww` behind it, whose "
     "animation ends and which has no script.",
     "Add the twin."},
    {Check::kInfoState, "V902", kWarning, "the doctor doesn't know a tool",
     "For each tool he has a state: its name without `tool`, and `info` behind it.",
     "Add the state."},
    {Check::kDoctorState, "V903", kWarning, "the doctor lacks a state that the game enters",
     "The game sends him there by itself, and he stays silent.", "Add the state."},
    {Check::kSurgery, "V904", kWarning, "a surgery machine without its first stage",
     "When a kangaroo or a scarecrow starts over, `surgerymachine` is put into `tumorStage1` "
     "or `tonsilsStage1`.",
     "Add the state."},
    {Check::kGapInRow, "V905", kWarning, "a gap in the row of getting well",
     "`<incrementstate>` goes from `default` to `better1`, `better2` and so on; a patient "
     "stays where the next one is missing.",
     "Add the state, or rename the ones behind it."},
    {Check::kUnusedTwin, "V906", kNote, "a state without its twin that nothing hurts",
     "The engine's own check asks for a twin of every state of a patient with `default` or "
     "`better` in its name, though nothing in the state's script leads there.",
     "Add the twin, or silence what is never hurt."},
});

}  // namespace

std::span<const CheckRow> CheckTable() { return kRows; }

const CheckRow& RowOf(Check check) { return kRows[static_cast<std::size_t>(check)]; }

const CheckRow* FindCheck(std::string_view code) {
  for (const CheckRow& row : kRows) {
    if (EqualsNoCase(row.code, code)) return &row;
  }
  return nullptr;
}

std::string_view SeverityWord(Severity severity) {
  switch (severity) {
    case kError:
      return "error";
    case kWarning:
      return "warning";
    case kNote:
      return "note";
  }
  return "";
}

}  // namespace quendle
