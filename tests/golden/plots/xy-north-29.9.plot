kind XY
surface screen
size 8
box  420000
box  199990
box      30
box       5
point 420000.0 200011.223 가
point 420029.9 200003.741 나-2
point 420001.5 200000.0 C3
.
ForeColor = 0
Font = 굴림체
Cls
DrawWidth = 1.0000
Line 141.2345 7414.8136 7626.6656 7414.8136 0 6
fontsize = 8.0000
CurrentX = 282.4691
CurrentY = 7251.5050
print  420000
Line 141.2345 6237.8591 7626.6656 6237.8591 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 6074.5505
print  420005
Line 141.2345 5060.9045 7626.6656 5060.9045 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 4897.5959
print  420010
Line 141.2345 3883.9500 7626.6656 3883.9500 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 3720.6414
print  420015
Line 141.2345 2706.9955 7626.6656 2706.9955 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 2543.6868
print  420020
Line 141.2345 1530.0409 7626.6656 1530.0409 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 1366.7323
print  420025
Line 141.2345 353.0864 7626.6656 353.0864 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 189.7777
print  420030
Line 353.0864 7626.6655 353.0864 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 9 523 7  199990
SelectObject
DeleteObject
Line 1530.0409 7626.6655 1530.0409 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 88 523 7  199995
SelectObject
DeleteObject
Line 2706.9954 7626.6655 2706.9954 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 166 523 7  200000
SelectObject
DeleteObject
Line 3883.9500 7626.6655 3883.9500 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 245 523 7  200005
SelectObject
DeleteObject
Line 5060.9046 7626.6655 5060.9046 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 323 523 7  200010
SelectObject
DeleteObject
Line 6237.8591 7626.6655 6237.8591 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 402 523 7  200015
SelectObject
DeleteObject
Line 7414.8132 7626.6655 7414.8132 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 480 523 7  200020
SelectObject
DeleteObject
DrawWidth = 2.0000
Circle 5348.7875 7414.8136 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 5348.7875 7293.8536 5347.7874 7532.5091 0 6
Line 5227.8276 7414.8136 5469.1608 7414.8136 0 6
fontsize = 8.0000
CurrentX = 5136.9360
CurrentY = 7145.5791
print 가
DrawWidth = 2.0000
Circle 3587.5929 376.6255 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 3587.5929 255.6654 3586.0334 500.2057 0 6
Line 3466.6328 376.6255 3707.4066 375.1543 0 6
fontsize = 8.0000
CurrentX = 3375.7411
CurrentY = 107.3909
print 나-2
DrawWidth = 2.0000
Circle 2706.9954 7061.7273 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 2706.9954 6940.7673 2706.9954 7179.4227 0 6
Line 2586.0353 7061.7273 2828.3689 7061.7273 0 6
fontsize = 8.0000
CurrentX = 2495.1437
CurrentY = 6792.4927
print C3
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8667.1591
print Kelvo Ver 3.5 Beta(2004.6.7)
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8949.6282
print Data File = /home/user/data/test.dat  2004-06-07  09:30:00
