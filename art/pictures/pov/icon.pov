// icon.pov -- the program's sign: a tower, a house and a tree on a piece of meadow.
// Two cells wide, drawn at twice the size of the icon.
#include "scenery.inc"
#include "stock.inc"
#declare Sc = C("CDBFA0");
#include "towers.inc"
box { <0,0,-0.30>, <2,2,-0.06> mPlain(C("8A6238")) }
box { <0,0,-0.44>, <2,2,-0.30> mPlain(C("6E4A2C")) }
box { <-0.015,-0.015,-0.07>, <2.015,2.015,0> Mat(pigment { bozo color_map { [0 rgb C("6A9A36")] [1 rgb C("8CBA4E")] } scale 0.18 }) }
box { <0.85,1.1,0>, <1.15,2.0,0.006> mPlain(C("D3C6A6")) }
RoundTower(<0.62,0.72,0>, 0.46, 1.12, 0, 1)
// a bold cone: the small one of the walls would vanish at this size
#declare J = 0;
#while (J < 7)
  cone { <0.62,0.72,1.20+0.125*J>, 0.50*(1-J/7)+0.015, <0.62,0.72,1.20+0.125*(J+1.1)>, max(0,0.50*(1-(J+1.1)/7)) mPlain(C("5E8FC4")*(0.92+0.16*mod(J,2))) }
  #declare J = J + 1;
#end
cylinder { <0.62,0.72,2.0>, <0.62,0.72,2.36>, 0.022 mPlain(cWood) }
mesh { triangle { <0.62,0.72,2.35>, <0.62,0.72,2.13>, <1.0,0.55,2.24> } mPlain(cRed) }
object { HouA scale 1.12 rotate z*4 translate <1.34,1.50,0> }
object { OakA scale 0.80 translate <1.58,0.50,0> }
object { ShrB scale 0.5 translate <0.40,1.52,0> }
object { ShrA scale 0.42 translate <1.84,1.10,0> }
