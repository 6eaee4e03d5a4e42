kind WGS
surface screen
size 8
box   37.0000
box  126.0000
box    2.0000
box    1.0000
point 37.20944444444444 127.09194444444445 가
point 38.598333333333336 127.0925 나-2
point 37.20986111111111 127.09208333333333 C3
.
ForeColor = 0
Font = 굴림체
Cls
DrawWidth = 1.0000
Line 141.2345 7414.8136 7626.6656 7414.8136 0 6
fontsize = 8.0000
CurrentX = 282.4691
CurrentY = 7251.5050
print   37-00-00
Line 141.2345 3883.9500 7626.6656 3883.9500 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 3720.6414
print   38-00-00
Line 141.2345 353.0864 7626.6656 353.0864 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 189.7777
print   39-00-00
Line 353.0864 7626.6655 353.0864 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 9 523 10  126-00-00
SelectObject
DeleteObject
Line 3883.9500 7626.6655 3883.9500 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 245 523 10  127-00-00
SelectObject
DeleteObject
Line 7414.8132 7626.6655 7414.8132 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 480 523 10  128-00-00
SelectObject
DeleteObject
DrawWidth = 2.0000
Circle 4208.5933 6675.2939 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 4208.5933 6554.3339 4208.5842 6796.2552 0 6
Line 4087.6334 6675.2939 4329.5640 6675.2885 0 6
fontsize = 8.0000
CurrentX = 3996.7414
CurrentY = 6406.0593
print 가
DrawWidth = 2.0000
Circle 4210.5551 1771.3166 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 4210.5551 1650.3566 4210.5508 1892.2764 0 6
Line 4089.5952 1771.3166 4331.5037 1771.3232 0 6
fontsize = 8.0000
CurrentX = 3998.7031
CurrentY = 1502.0820
print 나-2
DrawWidth = 2.0000
Circle 4209.0839 6673.8227 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 4209.0839 6552.8627 4209.0960 6794.7871 0 6
Line 4088.1240 6673.8227 4330.0489 6673.8204 0 6
fontsize = 8.0000
CurrentX = 3997.2319
CurrentY = 6404.5881
print C3
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8667.1591
print Kelvo Ver 3.5 Beta(2004.6.7)
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8949.6282
print Data File = /home/user/data/test.dat  2004-06-07  09:30:00
