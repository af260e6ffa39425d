#pragma once

#include <map>
#include <string>
#include <vector>

#include "base/WorkDepth.h"
#include "object/ObjectFactory.h"
#include "toolbelt/verify/ContentModel.h"
#include "toolbelt/verify/FileGate.h"

namespace quendle {

class Progress;
struct SoundRecord;
struct ScriptListRecord;

// Reads a whole content tree into plain records by the readers of the game.
class TreeReader {
 public:
  // All must outlive the reader.
  TreeReader(FileGate& gate, Progress& progress);

  ContentModel Read();

 private:
  // The lists of "\Info\".
  void ReadGlobalSounds();
  void ReadGlobalScripts();
  void ReadGlobalObjects();
  void ReadScreens();
  // The lines of a list of paths; blank ones are told.
  std::vector<NamedFile> ReadPaths(const std::string& list);
  void CheckTwice(const std::vector<ModelObjectRef>& objects, const char* noun);
  void NoteFixedFiles();

  // An object file; null when it can't be read.
  ModelObjectRef ReadObject(const NamedFile& file, ModelRole role, ModelObject* parent);
  // Type word, name and directives of an object file.
  void CheckHeader(const ModelObject& object, const ObjectFile& read);
  void ReadParts(ModelObject& object, const std::string& data_path, const FilePlace& place);
  void ReadStates(ModelObject& object, const NamedFile& file);
  void ReadAnimations(ModelObject& object, const NamedFile& file);
  void ReadAnimation(ModelObject& object, AnimationRecord record, const std::string& file);
  void ReadFrames(ModelObject& object, const NamedFile& file);
  void ReadSounds(ModelObject& object, const NamedFile& file);
  void ReadSound(ModelObject& object, const SoundRecord& record);
  void ReadScripts(ModelObject& object, const NamedFile& file);
  void ReadScript(ModelObject& object, const ScriptListRecord& record);
  void ReadChildren(ModelObject& object, const NamedFile& file);
  void ReadChild(ModelObject& object, const ChildLine& line);
  ModelObjectRef GlobalChild(ModelObject& object, const ChildLine& line);

  // What an arcade game is made of beside its objects.
  void ReadPlayArea(ModelObject& area, const NamedFile& object_file, const std::string& data_path);
  void ReadGame(ModelObject& area, const NamedFile& game);
  void ReadShooter(ModelObject& area, const NamedFile& header);
  void ReadBoard(ModelObject& area, const NamedFile& board);
  void ReadCell(ModelObject& area, const NamedFile& file);
  NamedFile InFile(const ModelObject& object, const std::string& stored,
                   const FilePlace& place) const;

  FileGate& gate_;
  Progress& progress_;
  Findings& findings_;
  ObjectFactory factory_;
  WorkDepth depth_;
  ContentModel model_;
  std::map<std::string, ModelObjectRef> known_;  // by folded path of the object file
  std::vector<std::string> open_;                // folded paths of the object files being read
  std::vector<std::string> global_names_;
};

}  // namespace quendle
