#pragma once

namespace quendle {

class Boxes;
class Clock;
class DirectDraw;
class DisplayModes;
class FileSystem;
class FilterGraphs;
class FormHost;
class GameWindow;
class Gdi;
class PictureLoader;
class PictureSaver;
class RandomSource;
class SystemServices;
class TimerService;

// Everything the game needs of a platform. The references outlive the game.
struct Ports {
  FileSystem& files;
  Clock& clock;
  TimerService& timers;
  RandomSource& random;
  Boxes& boxes;
  Gdi& gdi;
  DirectDraw& direct_draw;
  DisplayModes& display_modes;
  FilterGraphs& filter_graphs;
  GameWindow& window;
  FormHost& forms;
  SystemServices& system;
  PictureLoader& picture_loader;
  PictureSaver& picture_saver;
};

}  // namespace quendle
