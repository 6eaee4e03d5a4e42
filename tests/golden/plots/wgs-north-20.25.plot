kind WGS
surface screen
size 8
box   37.1230
box  127.0520
box    0.0030
box    0.0010
point 37.20944444444444 127.09194444444445 가
point 37.215069444444445 127.0925 나-2
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
print   37-12-30
Line 141.2345 5060.9046 7626.6656 5060.9046 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 4897.5960
print   37-12-40
Line 141.2345 2706.9956 7626.6656 2706.9956 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 2543.6869
print   37-12-50
Line 141.2345 353.0866 7626.6656 353.0866 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 189.7779
print   37-13-00
Line 353.0864 7626.6655 353.0864 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 9 523 10  127-05-20
SelectObject
DeleteObject
Line 2706.9954 7626.6655 2706.9954 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 166 523 10  127-05-30
SelectObject
DeleteObject
Line 5060.9046 7626.6655 5060.9046 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 323 523 10  127-05-40
SelectObject
DeleteObject
Line 7414.8132 7626.6655 7414.8132 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 480 523 10  127-05-50
SelectObject
DeleteObject
DrawWidth = 2.0000
Circle 2941.3806 6472.1725 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 2941.3806 6351.2125 2939.1680 6593.7327 0 6
Line 2820.4205 6472.1725 3062.0068 6470.8938 0 6
fontsize = 8.0000
CurrentX = 2729.5287
CurrentY = 6202.9380
print 가
DrawWidth = 2.0000
Circle 3412.1623 1705.5069 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 3412.1623 1584.5468 3411.1278 1825.6447 0 6
Line 3291.2022 1705.5069 3533.9668 1706.0384 0 6
fontsize = 8.0000
CurrentX = 3200.3106
CurrentY = 1436.2723
print 나-2
DrawWidth = 2.0000
Circle 3059.0760 6119.0862 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 3059.0760 5998.1262 3062.0068 6241.3791 0 6
Line 2938.1159 6119.0862 3178.3806 6118.5402 0 6
fontsize = 8.0000
CurrentX = 2847.2243
CurrentY = 5849.8516
print C3
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8667.1591
print Kelvo Ver 3.5 Beta(2004.6.7)
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8949.6282
print Data File = /home/user/data/test.dat  2004-06-07  09:30:00
