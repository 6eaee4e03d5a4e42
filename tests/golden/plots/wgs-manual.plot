kind WGS
surface screen
size 8
manual 37.25 126.5 0.019999999552965164 0.004999999888241291
point 37.251 126.501 가
point 39.0 129.0 밖
.
ForeColor = 0
Font = 굴림체
Cls
DrawWidth = 1.0000
Line 141.2345 7414.8136 7626.6656 7414.8136 0 6
fontsize = 8.0000
CurrentX = 282.4691
CurrentY = 7251.5050
print   37-15-00
Line 141.2345 5649.3818 7626.6656 5649.3818 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 5486.0732
print   37-15-18
Line 141.2345 3883.9500 7626.6656 3883.9500 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 3720.6414
print   37-15-36
Line 141.2345 2118.5182 7626.6656 2118.5182 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 1955.2095
print   37-15-54
Line 141.2345 353.0864 7626.6656 353.0864 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 189.7777
print   37-16-12
Line 353.0864 7626.6655 353.0864 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 9 523 10  126-30-00
SelectObject
DeleteObject
Line 2118.5182 7626.6655 2118.5182 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 127 523 10  126-30-18
SelectObject
DeleteObject
Line 3883.9500 7626.6655 3883.9500 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 245 523 10  126-30-36
SelectObject
DeleteObject
Line 5649.3816 7626.6655 5649.3816 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 363 523 10  126-30-54
SelectObject
DeleteObject
Line 7414.8132 7626.6655 7414.8132 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 480 523 10  126-31-12
SelectObject
DeleteObject
DrawWidth = 2.0000
Circle 706.1728 7061.7273 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 706.1728 6940.7673 705.9788 7183.1438 0 6
Line 585.2128 7061.7273 827.2014 7061.9212 0 6
fontsize = 8.0000
CurrentX = 494.3209
CurrentY = 6792.4927
print 가
DrawWidth = 2.0000
Circle 883069.0005 -610486.3365 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 883069.0005 -610607.2965 883069.0005 -610365.1140 0 6
Line 882948.0146 -610486.3365 883187.5500 -610486.3365 0 6
fontsize = 8.0000
CurrentX = 882857.1507
CurrentY = -610755.5711
print 밖
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8667.1591
print Kelvo Ver 3.5 Beta(2004.6.7)
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8949.6282
print Data File = /home/user/data/test.dat  2004-06-07  09:30:00
