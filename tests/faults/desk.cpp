// The desk's commands on the jobs of a folder, for the fault loops:
//
//   orm_desk ROOT nuovo|copia|riporta|rinomina|archivia|riprende
//
// a job "Nuovo" after the model of "Uno"; the note of "Uno" to "Due"; the oldest version of the
// note of "Uno"; "Uno" as "Nuovo", as "Uno.zip", and out of it as "Nuovo". Done twice each is done
// once. Exit codes as those of orm_saver.
#include <iostream>

#include "jobs/job_commands.h"
#include "jobs/job_zip.h"
#include "jobs/note_versions.h"
#include "jobs/zip/zip_library.h"
#include "runtime/failure.h"
#include "tests/faults/followed.h"

int main(int count, char** words) {
  if (count < 3) return 3;
  const std::string root = words[1], what = words[2], one = root + "/Uno", zip = root + "/Uno.zip";
  if (orm::WorkFolder(root).Exists("Nuovo")) return 0;
  const auto note = orm::LeggiLavoro(root, "Uno").parcelle.at(0);
  const auto versions = orm::VersioniDi(one, note);
  orm::LibZip();  // the loader's calls are no part of a command
  BeFollowed();
  try {
    if (what == "nuovo") orm::NuovoLavoro(root, "Nuovo", "Uno", orm::WorkFolder(root));
    if (what == "copia") orm::CopiaParcella(one, note, root + "/Due", true);
    if (what == "riporta") orm::RiportaVersione(one, note, versions.back());
    if (what == "rinomina") orm::RinominaLavoro(root, "Uno", "Nuovo");
    if (what == "archivia") orm::ArchiviaLavoro(one, zip);
    if (what == "riprende") orm::RiprendiLavoro(zip, root, "Nuovo");
  } catch (const orm::RuntimeFailure& failure) {
    std::cerr << failure.Text() << std::endl;
    return 2;
  }
  return 0;
}
