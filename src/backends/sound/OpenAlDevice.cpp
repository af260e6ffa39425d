#include "backends/sound/OpenAlDevice.h"

#include <AL/al.h>
#include <AL/alc.h>
#include <AL/alext.h>

#include <utility>

namespace quendle {
namespace {

// An operation of an extension; null when the library doesn't have it.
template <typename Operation>
Operation Extension(const char* name) {
  return reinterpret_cast<Operation>(alcGetProcAddress(nullptr, name));
}

// The context is the thread's own, so that two games on two threads don't take each other's.
void SetCurrent(ALCcontext* context) {
  auto set_of_thread = Extension<PFNALCSETTHREADCONTEXTPROC>("alcSetThreadContext");
  if (set_of_thread != nullptr) {
    set_of_thread(context);
  } else {
    alcMakeContextCurrent(context);
  }
}

}  // namespace

// An open device and its mixer, closed together.
struct OpenAlDevice::Handles {
  // Takes the device, which may be null; without a mixer `context` is null.
  Handles(ALCdevice* opened, const ALCint* attributes) : device(opened) {
    if (device != nullptr) context = alcCreateContext(device, attributes);
  }
  ~Handles() {
    if (context != nullptr) {
      SetCurrent(nullptr);
      alcDestroyContext(context);
    }
    if (device != nullptr) alcCloseDevice(device);
  }
  Handles(const Handles&) = delete;
  Handles& operator=(const Handles&) = delete;

  ALCdevice* device;
  ALCcontext* context = nullptr;
};

OpenAlDevice::OpenAlDevice(std::unique_ptr<Handles> handles) : handles_(std::move(handles)) {}

OpenAlDevice::~OpenAlDevice() = default;

std::shared_ptr<OpenAlDevice> OpenAlDevice::Open() {
  auto handles = std::make_unique<Handles>(alcOpenDevice(nullptr), nullptr);
  if (handles->context == nullptr) return nullptr;
  return std::shared_ptr<OpenAlDevice>(new OpenAlDevice(std::move(handles)));
}

std::shared_ptr<OpenAlDevice> OpenAlDevice::OpenLoopback(int rate) {
  auto open = Extension<LPALCLOOPBACKOPENDEVICESOFT>("alcLoopbackOpenDeviceSOFT");
  if (open == nullptr) return nullptr;
  const ALCint attributes[] = {ALC_FORMAT_CHANNELS_SOFT,
                               ALC_STEREO_SOFT,
                               ALC_FORMAT_TYPE_SOFT,
                               ALC_FLOAT_SOFT,
                               ALC_FREQUENCY,
                               rate,
                               0};
  auto handles = std::make_unique<Handles>(open(nullptr), attributes);
  if (handles->context == nullptr) return nullptr;
  return std::shared_ptr<OpenAlDevice>(new OpenAlDevice(std::move(handles)));
}

std::string OpenAlDevice::Library() {
  const auto device = OpenLoopback(44100);
  if (device == nullptr) return "OpenAL";
  device->MakeCurrent();
  // The version of the interface, a word for the library, and its version.
  return std::string("OpenAL ") + alGetString(AL_VERSION);
}

void OpenAlDevice::MakeCurrent() { SetCurrent(handles_->context); }

bool OpenAlDevice::Connected() {
  if (alcIsExtensionPresent(handles_->device, "ALC_EXT_disconnect") == ALC_FALSE) return true;
  ALCint connected = ALC_TRUE;
  alcGetIntegerv(handles_->device, ALC_CONNECTED, 1, &connected);
  return connected != ALC_FALSE;
}

std::vector<float> OpenAlDevice::Render(std::size_t frames) {
  std::vector<float> samples(frames * 2);
  auto render = Extension<LPALCRENDERSAMPLESSOFT>("alcRenderSamplesSOFT");
  render(handles_->device, samples.data(), static_cast<ALCsizei>(frames));
  return samples;
}

}  // namespace quendle
