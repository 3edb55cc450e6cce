grant execute on schema::&&SCHEMA to &&OWNER;
