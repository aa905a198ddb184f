% Effects bound to nodes from the script, their classes and their lifetime.
s = VOR2.Scene();
n = VOR2.RectNode([0 0 40 40]);
s.addNode(n);
inside = @(img) squeeze(img(20, 20, 1:3))';

% A script effect held only by its node paints after the variable is gone.
e = VOR2.EffectColorOverlay();
e.Color = [0 0 1 1];
n.Effects.add(e);
clear e
assert(inside(s.render(0, [0 0 40 40])), uint8([0 0 255]));

% The effect fetched back is the one bound, of its own class; the list is one
% object however often it is fetched.
fx = n.Effects;
assert(fx == n.Effects);
overlay = fx.get('ColorOverlay');
assert(class(overlay), 'VOR2.EffectColorOverlay');
assert(overlay.getEffectType(), 'ColorOverlay');
assert(overlay.Color, [0 0 1 1]);
assert(isempty(fx.get('Glow')));

% A change to the effect repaints; disabling the binding hides it; removing
% answers whether anything matched.
overlay.Opacity = 0;
assert(inside(s.render(0, [0 0 40 40])), uint8([255 255 255]));
overlay.Opacity = 1;
assert(fx.disable('ColorOverlay'));
assert(inside(s.render(0, [0 0 40 40])), uint8([255 255 255]));
assert(fx.enable(overlay));
assert(inside(s.render(0, [0 0 40 40])), uint8([0 0 255]));
assert(fx.remove(overlay));
assert(~fx.remove('ColorOverlay'));
assert(inside(s.render(0, [0 0 40 40])), uint8([255 255 255]));

% One effect under two ids, and get returns each binding's effect.
g = VOR2.EffectGlow();
fx.add(g);
fx.add(g, 'second');
assert(fx.get('Glow') == g && fx.get('second') == g);
assert(class(fx.get('Glow')), 'VOR2.EffectGlow');
fx.clear();
assert(isempty(fx.get('Glow')));

% The glow has no MaskedOut; the shadow does; the inner shadow has Distance only.
assert(isprop(g, 'Spread') && ~isprop(g, 'MaskedOut') && ~isprop(g, 'Distance'));
sh = VOR2.EffectShadow();
assert(isprop(sh, 'MaskedOut') && isprop(sh, 'Distance'));
assert(sh.MaskedOut);
sh.MaskedOut = false;
assert(~sh.MaskedOut);
is = VOR2.EffectInnerShadow();
assert(isprop(is, 'Distance') && ~isprop(is, 'MaskedOut'));
assert(isa(VOR2.EffectInnerGlow(), 'VOR2.EffectGlow'));
% Spread is an int32; the distance keeps whole units.
g.Spread = 9;
assert(g.Spread, int32(9));
expect_error(@() set_property(g, 'Spread', 2.5), 'VOR2:WrongType');
sh.Distance = [2.4 -3.6];
assert(sh.Distance, [2 -4]);
expect_error(@() set_property(sh, 'Distance', [Inf 0]), 'DPoint:InvalidValue');
assert(sh.Distance, [2 -4]);

% The stroke effect: the inset by name, the stroke as a value.
st = VOR2.EffectStroke();
assert(st.Inset, 'Center');
st.Inset = 'Outer';
assert(st.Inset, 'Outer');
expect_error(@() set_property(st, 'Inset', 'Middle'), 'VOR2:ExpectedEnumValue', ...
             'Expected one of the following values: Inner, Center, Outer');
assert(st.Inset, 'Outer');
k = st.Stroke;
k.Width = 7;
assert(st.Stroke.Width == 3);
st.Stroke = k;
assert(st.Stroke.Width == 7);
st2 = VOR2.EffectStroke(k, 'Inner');
assert(st2.Inset, 'Inner');
assert(st2.Stroke.Width, 7);

% The default effect is an object on no effect; the plain class is not made
% from a script.
d = VOR2.Effect.getDefaultObject();
assert(class(d), 'VOR2.Effect');
expect_error(@() d.getEffectType(), 'TARVO:tcos_factory:null_self', 'Attempt to call a method on an empty value');
expect_error(@() VOR2.Effect(), 'VOR2:NotConstructible');

% Once the node is gone its list fails with the library's error.
n.remove();
expect_error(@() fx.add(g), 'VOR2:EffectReferencesInvalidNode', 'Effects referencing an invalid Node');
