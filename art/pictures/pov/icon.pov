// icon.pov -- the program's sign: a tower, a house and a tree on a piece of meadow.
// Small 1, for 32 pixels: tower and house alone, closer. Small 2, for 16: the tower.
#ifndef (Small) #declare Small = 0; #end
#include "scenery.inc"
#include "stock.inc"
#declare Sc = C("CDBFA0");
#include "towers.inc"
#declare Side = (Small = 0 ? 2 : (Small = 1 ? 1.70 : 1.34));       // of the meadow, in cells
#declare T = (Small = 0 ? <0.62,0.72,0> : (Small = 1 ? <0.56,0.58,0> : <0.58,0.58,0>));
#declare R = (Small = 2 ? 0.43 : 0.48);
#declare H = (Small = 0 ? 1.12 : (Small = 1 ? 0.74 : 0.76));
#declare Deep = (Small ? 0.20 : 0.30);
box { <0,0,-Deep>, <Side,Side,-0.06> mPlain(C("8A6238")) }
box { <0,0,-Deep*1.47>, <Side,Side,-Deep> mPlain(C("6E4A2C")) }
box { <-0.015,-0.015,-0.07>, <Side+0.015,Side+0.015,0> Mat(pigment { bozo color_map { [0 rgb C("6A9A36")] [1 rgb C("8CBA4E")] } scale 0.18 }) }
#if (Small = 0)
  // what only the large ones show: turf that hangs over the rim, stones in the soil, grass and flowers
  #declare Rn = seed(7);
  #declare I = 0;
  #while (I < 150)
    #declare At = Side*(I + rand(Rn))/150; #declare Hang = 0.03 + 0.05*rand(Rn); #declare K = 0.85 + 0.3*rand(Rn);
    cone { <At,Side+0.012,-0.05>, 0.016, <At + 0.02*(rand(Rn)-0.5),Side+0.014,-0.06-Hang>, 0.004 mPlain(C("7DAA42")*K) }
    cone { <Side+0.012,At,-0.05>, 0.016, <Side+0.014,At + 0.02*(rand(Rn)-0.5),-0.06-Hang>, 0.004 mPlain(C("7DAA42")*K) }
    #declare I = I + 1;
  #end
  #declare I = 0;
  #while (I < 44)
    #declare At = Side*(0.03 + 0.94*rand(Rn)); #declare Low = -0.12 - 0.28*rand(Rn); #declare Big = 0.012 + 0.03*pow(rand(Rn), 2);
    #declare Pale = Vary(C("A98F6A"), 0.25, Rn);
    sphere { 0, Big scale <1.5,0.4,0.9> translate <At,Side,Low> mPlain(Pale) }
    #declare At = Side*(0.03 + 0.94*rand(Rn)); #declare Low = -0.12 - 0.28*rand(Rn);
    sphere { 0, Big scale <0.4,1.5,0.9> translate <Side,At,Low> mPlain(Pale) }
    #declare I = I + 1;
  #end
  #declare I = 0;
  #while (I < 900)
    #declare P = <Side*rand(Rn), Side*rand(Rn), -0.005>; #declare K = 0.8 + 0.5*rand(Rn); #declare Up = 0.025 + 0.035*rand(Rn);
    #declare Lean = <0.03*(rand(Rn)-0.5), 0.03*(rand(Rn)-0.5), Up>;
    #if (abs(P.x - Side*0.5) > Side*0.08 | P.y < Side*0.55) cone { P, 0.007, P + Lean, 0.001 mPlain(C("86B44C")*K) } #end
    #declare I = I + 1;
  #end
  #declare I = 0;
  #while (I < 26)
    #declare P = <Side*(0.62 + 0.34*rand(Rn)), Side*(0.90 + 0.08*rand(Rn)), 0.045>;
    #if (I > 12) #declare P = <Side*(0.03 + 0.36*rand(Rn)), Side*(0.87 + 0.11*rand(Rn)), 0.045>; #end
    sphere { P, 0.015 mPlain((mod(I, 3) = 0 ? C("F4EEDF") : (mod(I, 3) = 1 ? C("F2C63A") : C("E8607A")))) }
    #declare I = I + 1;
  #end
#end
#if (Small < 2) box { <Side*0.43,Side*0.55,0>, <Side*0.57,Side,0.006> mPlain(C("D3C6A6")) } #end
#if (Small < 2)
  RoundTower(T, R, H, 0, 1)
#else
  cylinder { T, T+z*(H+0.10), R mPlain(C("F0E4C4")) }
  cylinder { T+z*(H-0.06), T+z*(H+0.10), R*1.12 mPlain(C("FFF4DA")) }
  box { T+<0.06,R-0.06,0>, T+<-0.14,R+0.02,0.34> mPlain(cBeamDark) }
#end
// a bold cone: the small one of the walls would vanish at this size
#declare Cone = (Small = 2 ? 0.60 : 0.53); #declare Rise = (Small = 2 ? 0.72 : 0.875); #declare Rows = (Small ? 7 : 11); #declare J = 0;
#while (J < Rows)
  #declare Blue = C("5E8FC4")*(0.92+(Small ? 0.06 : 0.10)*mod(J,2));
  cone { T+z*(H+0.08+Rise/Rows*J), Cone*(1-J/Rows)+0.015, T+z*(H+0.08+Rise/Rows*(J+1.1)), max(0,Cone*(1-(J+1.1)/Rows))
    #if (Small) mPlain(Blue)
    #else       // slates, half a slate further in every other row
      Mat(pigment { radial frequency 34 - 2*J color_map { [0.10 rgb Blue*0.62] [0.10 rgb Blue*0.94] [1 rgb Blue*1.08] } rotate x*90 rotate z*180/(34 - 2*J)*mod(J,2) translate T })
    #end
  }
  #declare J = J + 1;
#end
#declare F = (Small = 0 ? 1 : (Small = 1 ? 1.25 : 1.35));           // the flag
#declare Top = H + 0.08 + Rise;
cylinder { T+z*(Top-0.1), T+z*(Top+0.30*F), 0.022*F mPlain(cWood) }
mesh { triangle { T+z*(Top+0.29*F), T+z*(Top+0.07*F), T+<0.38*F,-0.17*F,Top+0.18*F> } mPlain(cRed) }
#if (Small = 0)
  object { HouA scale 1.12 rotate z*4 translate <1.34,1.50,0> clipped_by { plane { -z, 0.02 } } }
  object { OakA scale 0.80 translate <1.58,0.50,0> }
  object { ShrB scale 0.5 translate <0.40,1.52,0> }
  object { ShrA scale 0.42 translate <1.84,1.10,0> }
#end
#if (Small = 1)
  object { HouA scale 1.02 rotate z*4 translate <1.16,1.24,0> clipped_by { plane { -z, 0.02 } } }
  object { ShrB scale 0.6 translate <1.46,0.46,0> }
#end
