#pragma once

#include "Symbols.h"

inline constexpr char compass[] =
    "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 20 40'><defs><linearGradient id='g'>"
    "<stop offset='0' stop-color='red'/><stop offset='1' stop-color='blue'/></linearGradient></defs>"
    "<path d='M10 1 C 20 10 18 30 10 39 C 2 30 0 10 10 1 Z' fill='url(#g)' stroke='black'/>"
    "<circle cx='10' cy='20' r='4.3' fill='white' stroke='green'/></svg>";

// Symbols as documents hold them, lines and fills. COMPASS stands for an SVG.
struct Stored {
  char const* name;
  char const* text;
};
inline constexpr Stored storedLines[] = {
    {"a casing and its line",
     "{'type':'layeredLine','layers':[{'type':'simpleLine','width':9,'color':'#80204060'},"
     "{'type':'simpleLine','width':5,'offset':2,'color':'#ffdd55'}]}"},
    {"dashes of any lengths", "{'type':'dashLine','pattern':[9,3,0.7],'start':-4.3,'width':2.3,'color':'#90aa2200'}"},
    {"dashes too fine to be seen", "{'type':'dashLine','pattern':[0.02,0.01],'width':2.3,'cap':'butt'}"},
    {"turned markers",
     "{'type':'markerLine','interval':13.7,'first':5.1,'marker':{'type':'simpleMarker',"
     "'style':'triangle','size':9,'color':'#90aa2200','outlineWidth':0.7}}"},
    {"upright markers beside",
     "{'type':'markerLine','interval':7,'offset':-6,'turned':false,'marker':"
     "{'type':'simpleMarker','style':'star','size':9}}"},
    {"turned pictures",
     "{'type':'markerLine','interval':31,'marker':{'type':'layeredMarker','layers':["
     "{'type':'simpleMarker','size':21},{'type':'svgMarker','size':17,'angle':20,'svg':'COMPASS'}]}}"},
};
inline constexpr Stored storedFills[] = {
    {"a hatch over a colour",
     "{'type':'layeredFill','layers':[{'type':'simpleFill','color':'#80ffcc00'},"
     "{'type':'simpleFill','style':'cross','outline':{'type':'simpleLine','width':2}}]}"},
    {"markers on a grid",
     "{'type':'pointPatternFill','dx':9.3,'dy':7.7,'marker':{'type':'simpleMarker','size':5,"
     "'style':'star','outlineWidth':0.5,'color':'#90aa2200'}}"},
    {"pictures on a turned grid",
     "{'type':'pointPatternFill','dx':23,'dy':19,'staggered':true,'angle':17,"
     "'marker':{'type':'svgMarker','size':29,'angle':33,'svg':'COMPASS'},"
     "'outline':{'type':'simpleLine'}}"},
    {"markers too fine to be seen",
     "{'type':'pointPatternFill','dx':0.5,'dy':0.5,'marker':{'type':'simpleMarker',"
     "'size':0.2}}"},
    {"markers that cover each other",
     "{'type':'pointPatternFill','dx':1,'dy':1,'marker':{'type':'simpleMarker',"
     "'size':500,'color':'#20aa2200'}}"},
    {"tiles", "{'type':'pictureFill','width':17.3,'svg':'COMPASS'}"},
    {"turned tiles", "{'type':'pictureFill','width':140,'angle':-21,'svg':'COMPASS'}"},
    {"tiles too fine to be seen", "{'type':'pictureFill','width':0.5,'svg':'COMPASS'}"},
    {"a gradient",
     "{'type':'gradientFill','angle':33,'stops':[{'position':0,'color':'#80ff0000'},"
     "{'position':40,'color':'#ffff00'},{'position':100,'color':'#000080'}]}"},
    {"a round gradient",
     "{'type':'gradientFill','shape':'radial','stops':[{'position':10,'color':'#ff0000'},"
     "{'position':90,'color':'#0000ff00'}],'outline':{'type':'dashLine','pattern':[5,2]}}"},
};

inline _ptr_t<SysDisplay::Symbol> symbolOf(Stored const& stored) {
  return storedSymbol(QByteArray(stored.text).replace("COMPASS", QByteArray(compass).replace('\'', "\\\"")));
}
