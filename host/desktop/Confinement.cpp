#include "Confinement.h"

#include "Console.h"
#include "GlobalOption.h"

#include "host/SysCarto/layers/Connections.h"
#include "host/SysUtility/FileReach.h"

#include <QFileInfo>

bool Confinement::take(QStringList& arguments) {
  isConfined = takeFlag(arguments, option);
  while (auto const folder = takeOption(arguments, folderOption, OptionValue::First)) folders << *folder;
  while (auto const name = takeOption(arguments, connectionOption, OptionValue::First)) connections << *name;
  QString problem;
  for (QString const& folder : qAsConst(folders))
    if (folder.isEmpty())
      problem = QStringLiteral("--allow lacks its folder; write --allow FOLDER.");
    else if (!QFileInfo(folder).isDir())
      problem = QStringLiteral("--allow takes a folder that is there, not \"%1\".").arg(folder);
  if (problem.isEmpty() && !folders.isEmpty() && !isConfined)
    problem = QStringLiteral("--allow goes with --confine; give both.");
  if (connections.contains(QString()))
    problem = QStringLiteral("--allow-connection lacks its name; write --allow-connection NAME.");
  else if (problem.isEmpty() && !connections.isEmpty() && !isConfined)
    problem = QStringLiteral("--allow-connection goes with --confine; give both.");
  if (problem.isEmpty()) return true;
  Console::complain(problem);  // in English: nothing is translated yet
  return false;
}

QStringList Confinement::arguments() const {
  QStringList arguments;
  if (isConfined) arguments << QStringLiteral("--") + QLatin1String(option);
  for (QString const& folder : folders) arguments << QStringLiteral("--") + QLatin1String(folderOption) << folder;
  for (QString const& name : connections) arguments << QStringLiteral("--") + QLatin1String(connectionOption) << name;
  return arguments;
}

void Confinement::begin() const {
  if (!isConfined) return;
  SysUtility::FileReach::confine(folders);
  SysCarto::Connections::confine(connections);
}
