#include "Confinement.h"

#include "Console.h"
#include "GlobalOption.h"

#include "host/SysUtility/FileReach.h"

#include <QFileInfo>

bool Confinement::take(QStringList& arguments) {
  isConfined = takeFlag(arguments, option);
  while (auto const folder = takeOption(arguments, folderOption, OptionValue::First)) folders << *folder;
  QString problem;
  for (QString const& folder : qAsConst(folders))
    if (folder.isEmpty())
      problem = QStringLiteral("--allow lacks its folder; write --allow FOLDER.");
    else if (!QFileInfo(folder).isDir())
      problem = QStringLiteral("--allow takes a folder that is there, not \"%1\".").arg(folder);
  if (problem.isEmpty() && !folders.isEmpty() && !isConfined)
    problem = QStringLiteral("--allow goes with --confine; give both.");
  if (problem.isEmpty()) return true;
  Console::complain(problem);  // in English: nothing is translated yet
  return false;
}

QStringList Confinement::arguments() const {
  QStringList arguments;
  if (isConfined) arguments << QStringLiteral("--") + QLatin1String(option);
  for (QString const& folder : folders) arguments << QStringLiteral("--") + QLatin1String(folderOption) << folder;
  return arguments;
}

void Confinement::begin() const {
  if (isConfined) SysUtility::FileReach::confine(folders);
}
