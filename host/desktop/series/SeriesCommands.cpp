#include "SeriesCommands.h"

#include "SeriesDialog.h"

#include "host/desktop/HostCommands.h"
#include "host/desktop/Workbench.h"

#include <memory>

void addPageCommands(HostCommands& host, SeriesView& series) {
  for (auto const& [identifier, page] :
       {std::make_pair("Host_FirstPage", "first"), std::make_pair("Host_PreviousPage", "previous"),
        std::make_pair("Host_NextPage", "next"), std::make_pair("Host_LastPage", "last"),
        std::make_pair("Host_NoPage", "none")}) {
    auto const problem = std::make_shared<QString>();
    host.add(QLatin1String(identifier),
             {[&series, page = page, problem] { *problem = series.show(QString::fromLatin1(page)); },
              [&series] { return series.pages() != nullptr; },
              {},
              [problem] { return *problem; }});
  }
}

void addSeriesDialog(HostCommands& host, Workbench& bench, QWidget& window) {
  host.add(QStringLiteral("Host_Series"),
           {[&bench, &window] { SeriesDialog(bench.session(), bench.series(), &window).exec(); },
            [&bench] { return static_cast<bool>(bench.views().GetPageLayout()); },
            {}});
}
