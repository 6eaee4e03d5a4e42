kind UGS
surface screen
size 8
box   37.0000
box  127.0000
box    1.0000
box    1.0000
point 37.20944444444444 127.59201388888889 가
point 37.21138888888889 127.09194444444445 B
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
Line 141.2345 353.0864 7626.6656 353.0864 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 189.7777
print   38-00-00
Line 353.0864 7626.6655 353.0864 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 9 523 10  127-00-00
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
Circle 4533.7272 5935.7741 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 4533.7272 5814.8141 4533.7030 6056.7436 0 6
Line 4412.7673 5935.7741 4654.7100 5935.7634 0 6
fontsize = 8.0000
CurrentX = 4321.8752
CurrentY = 5666.5395
print 가
DrawWidth = 2.0000
Circle 1002.3730 5922.0430 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 1002.3730 5801.0829 1002.3545 6043.0050 0 6
Line 881.4130 5922.0430 1123.3078 5922.0518 0 6
fontsize = 8.0000
CurrentX = 790.5212
CurrentY = 5652.8084
print B
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8667.1591
print Kelvo Ver 3.5 Beta(2004.6.7)
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8949.6282
print Data File = /home/user/data/test.dat  2004-06-07  09:30:00
