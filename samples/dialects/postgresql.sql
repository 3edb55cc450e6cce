\set ON_ERROR_STOP on
\c warehouse
-- Reservations, PostgreSQL. Run by psql.
BEGIN;

CREATE TABLE reservation (
    reservation_id bigint GENERATED ALWAYS AS IDENTITY,
    article        text NOT NULL DEFAULT E'it\'s; new',
    tags           text[] NOT NULL DEFAULT '{}',
    taken          numeric(12,3)
);

/* The body is a string to the parser: /* nested comments */ and terminators
   inside it belong to the function. */
CREATE OR REPLACE FUNCTION reserve(p_article text, p_wanted numeric) RETURNS bigint AS $body$
DECLARE
    id bigint;
BEGIN
    INSERT INTO reservation (article, taken) VALUES (p_article, p_wanted) RETURNING reservation_id INTO id;
    EXECUTE format($$SELECT pg_notify('reserved', %L);$$, id);
    RETURN id;
END;
$body$ LANGUAGE plpgsql;

CREATE FUNCTION open_quantity(text) RETURNS numeric
LANGUAGE sql
BEGIN ATOMIC
    SELECT coalesce(sum(CASE WHEN taken > 0 THEN taken ELSE 0 END), 0) FROM reservation WHERE article = $1;
END;

CREATE RULE keep_history AS ON DELETE TO reservation DO INSTEAD
    (INSERT INTO history SELECT OLD.*; UPDATE counters SET deleted = deleted + 1);

COMMIT;

DO $$
BEGIN
    PERFORM reserve('bolt M8', 5);
END
$$;

\echo reserved; it's done
\connect "report db" clerk
SELECT tags[1], article::varchar(20) FROM reservation WHERE article <> 'a--b';
