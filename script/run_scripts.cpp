#include "script/run_scripts.h"

#include <filesystem>
#include <optional>

#include "runtime/failure.h"

namespace orm {
namespace {

// A working folder that goes when its script has been played.
class FreshFolder {
 public:
  FreshFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "orm2002-XXXXXX").string();
    if (::mkdtemp(pattern.data()) == nullptr)
      throw RuntimeFailure("Non si può creare una cartella di lavoro.");
    path_ = pattern;
  }
  ~FreshFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  FreshFolder(const FreshFolder&) = delete;
  FreshFolder& operator=(const FreshFolder&) = delete;
  const std::string& Path() const { return path_; }

 private:
  std::string path_;
};

}  // namespace

std::optional<Mismatch> RunScript(const std::string& path, const StageBuilder& build,
                                  const ScriptOptions& options) {
  try {
    const std::filesystem::path script(path);
    const std::string home = script.has_parent_path() ? script.parent_path().string() : ".";
    const WorkFolder scriptFolder(home);
    const FreshFolder fresh;
    ScriptPlayer player(ParseScript(scriptFolder.Read(script.filename().string())), scriptFolder,
                        WorkFolder(fresh.Path()), options);
    return player.Play(build);
  } catch (const Mismatch& mismatch) {
    return mismatch;
  } catch (const RuntimeFailure& failure) {
    return Mismatch{0, failure.Text()};
  }
}

int RunScripts(const std::vector<std::string>& paths, const StageBuilder& build,
               const ScriptOptions& options, std::ostream& output) {
  std::size_t held = 0;
  for (const std::string& path : paths) {
    if (const auto mismatch = RunScript(path, build, options))
      output << path << ":" << mismatch->line << ": " << mismatch->text << "\n";
    else
      ++held;
  }
  output << held << " passed, " << paths.size() - held << " failed" << std::endl;
  return held == paths.size() ? 0 : 1;
}

}  // namespace orm
